# What every target of this project is compiled with.

if(TAVIK_SANITIZE)
    set(TAVIK_SANITIZE_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=undefined
        -fno-omit-frame-pointer)
endif()

# tavik_target_defaults(<target>): C++17, moc and rcc, warnings, and Qt's strict mode.
function(tavik_target_defaults target)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        AUTOMOC ON
        AUTORCC ON)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_FOREACH
        QT_STRICT_ITERATORS
        QT_DEPRECATED_WARNINGS)
    if(NOT MSVC)
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
            -Woverloaded-virtual $<$<BOOL:${TAVIK_WARNINGS_AS_ERRORS}>:-Werror>
            ${TAVIK_SANITIZE_FLAGS})
        target_link_options(${target} PRIVATE ${TAVIK_SANITIZE_FLAGS})
    endif()
endfunction()

# tavik_classes(<target> <folder> <Class>...): adds public classes to the library. The files are
# <folder>/<class>.h and, where there is one, .cpp, named as the class in lower case. Users include
# <Tavik/Class>, or <Tavik/Tavik> for all: those forwarding headers are written here and installed as
# they are. Only <Tavik/class.h> differs: in the build tree it points to the source, and installed it
# is the source.
function(tavik_classes target folder)
    set(headers "${PROJECT_BINARY_DIR}/include/Tavik")
    foreach(class IN LISTS ARGN)
        string(TOLOWER "${class}" file)
        set(path "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/${file}")
        target_sources(${target} PRIVATE "${path}.h")
        if(EXISTS "${path}.cpp")
            target_sources(${target} PRIVATE "${path}.cpp")
        endif()
        file(CONFIGURE OUTPUT "${headers}/${file}.h" CONTENT "#include \"${path}.h\"\n")
        file(CONFIGURE OUTPUT "${headers}/${class}" CONTENT "#include \"${file}.h\"\n")
        install(FILES "${path}.h" "${headers}/${class}" DESTINATION "${TAVIK_HEADERS}")
        set_property(TARGET ${target} APPEND PROPERTY TAVIK_CLASSES "${class}")
    endforeach()
    get_target_property(all ${target} TAVIK_CLASSES)
    list(TRANSFORM all REPLACE "(.+)" "#include \"\\1\"\n")
    string(JOIN "" umbrella ${all})
    file(CONFIGURE OUTPUT "${headers}/Tavik" CONTENT "${umbrella}")
endfunction()
