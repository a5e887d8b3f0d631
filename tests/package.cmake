# The package for one QT, 5 or 6, as its users meet it. Installs the library into a scratch prefix, built without
# anything that only the tests need, and then builds and runs against it: a small consumer by find_package, the same
# one by pkg-config and by add_subdirectory, the example, and the code that README and guide show, word for word.
cmake_minimum_required(VERSION 3.18)

set(name Tavik)
set(other_qt 6)
if(QT EQUAL 6)
    set(name TavikQt6)
    set(other_qt 5)
endif()
set(prefix "${SCRATCH}/prefix")
set(consumer "${CMAKE_CURRENT_LIST_DIR}/consumer")
set(ENV{QT_QPA_PLATFORM} offscreen)
# What is installed is always fresh; what is built is built again where something has changed.
file(REMOVE_RECURSE "${prefix}" "${SCRATCH}/static" "${SCRATCH}/both")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        string(JOIN " " command ${ARGN})
        message(FATAL_ERROR "${command}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# configure_and_build(<name> <source> [<cmake option>...]): into SCRATCH/<name>.
function(configure_and_build name source)
    message(STATUS "Building ${name}")
    run("${CMAKE_COMMAND}" -S "${source}" -B "${SCRATCH}/${name}" -G "${GENERATOR}" ${ARGN})
    run("${CMAKE_COMMAND}" --build "${SCRATCH}/${name}")
endfunction()

# build_library(<name> <qt> [<cmake option>...]): all its sources as one, with everything out of reach that only tests
# and benchmarks may look for.
function(build_library name qt)
    configure_and_build(${name} "${SOURCE}" -D TAVIK_QT=${qt} -D CMAKE_BUILD_TYPE=Release
        -D CMAKE_UNITY_BUILD=ON -D CMAKE_UNITY_BUILD_BATCH_SIZE=0
        -D BUILD_TESTING=OFF -D TAVIK_BUILD_GALLERY=OFF -D TAVIK_BUILD_EXAMPLES=OFF
        -D CMAKE_DISABLE_FIND_PACKAGE_Qt${qt}Test=ON -D CMAKE_DISABLE_FIND_PACKAGE_benchmark=ON ${ARGN})
endfunction()

# find_tavik(<prefix> <expected Qt> [<cmake option>...]): configures the consumer, without building it.
function(find_tavik prefix expected)
    file(REMOVE_RECURSE "${SCRATCH}/finds")
    run("${CMAKE_COMMAND}" -S "${consumer}" -B "${SCRATCH}/finds" -G "${GENERATOR}"
        -D CMAKE_PREFIX_PATH=${prefix} -D EXPECTED=${expected} ${ARGN})
endfunction()

# refuse_tavik(<reason> [<cmake option>...]): what must not find the package, and what must be said then.
function(refuse_tavik reason)
    file(REMOVE_RECURSE "${SCRATCH}/refused")
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -S "${consumer}" -B "${SCRATCH}/refused" -G "${GENERATOR}"
            -D CMAKE_PREFIX_PATH=${prefix} -D EXPECTED=${QT} ${ARGN}
        RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE output)
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    if(result EQUAL 0 OR NOT output MATCHES "${reason}")
        message(FATAL_ERROR "Wanted: a refusal that says \"${reason}\". Got: ${result} ${output}")
    endif()
endfunction()

# The library, shared and static; by add_subdirectory it is built for Debug.
foreach(shared IN ITEMS ON OFF)
    build_library(library-${shared} ${QT} -D BUILD_SHARED_LIBS=${shared})
endforeach()
run("${CMAKE_COMMAND}" --install "${SCRATCH}/library-ON" --prefix "${prefix}")
run("${CMAKE_COMMAND}" --install "${SCRATCH}/library-OFF" --prefix "${SCRATCH}/static")

file(GLOB_RECURSE installed RELATIVE "${prefix}" "${prefix}/*")
if(NOT installed MATCHES "lib${name}\\.so\\.0\\.1(;|$)" OR installed MATCHES "_p\\.h")
    message(FATAL_ERROR "Wrong files were installed: ${installed}")
endif()
string(TOLOWER "${name}" folder)
foreach(language IN ITEMS de fr zh_CN)
    if(NOT "share/${folder}/translations/tavik_${language}.qm" IN_LIST installed)
        message(FATAL_ERROR "The translation ${language} was not installed: ${installed}")
    endif()
endforeach()
file(GLOB library "${prefix}/*/lib${name}.so" "${prefix}/*/*/lib${name}.so")
run(nm -DC --defined-only "${library}")
if(output MATCHES "Sheet::" OR NOT output MATCHES "LenConverter::m_rem")
    message(FATAL_ERROR "Wrong symbols are exported:\n${output}")
endif()

configure_and_build(by-find-package "${consumer}" -D CMAKE_PREFIX_PATH=${prefix} -D EXPECTED=${QT})
run("${SCRATCH}/by-find-package/consumer")
configure_and_build(static-by-find-package "${consumer}" -D CMAKE_PREFIX_PATH=${SCRATCH}/static -D EXPECTED=${QT})
run("${SCRATCH}/static-by-find-package/consumer")
# Qt's Linguist tools are no condition.
configure_and_build(by-add-subdirectory "${consumer}" -D TAVIK_SOURCE=${SOURCE} -D WAY=add_subdirectory
    -D FIRST=${QT} -D EXPECTED=${QT} -D CMAKE_BUILD_TYPE=Debug -D CMAKE_UNITY_BUILD=ON
    -D CMAKE_DISABLE_FIND_PACKAGE_Qt${QT}LinguistTools=ON)
run("${SCRATCH}/by-add-subdirectory/consumer")

# The example stands alone too, and sees nothing but what is installed.
configure_and_build(example "${SOURCE}/examples/poster" -D CMAKE_PREFIX_PATH=${prefix})
run("${SCRATCH}/example/tavik-poster" --rem 10 --picture "${SCRATCH}/poster.png")

# A version that promises another interface must not be taken.
refuse_tavik("requested version \"99.0\"" -D VERSION=99.0)

# Beside the package of the other Qt, the one that fits is taken; alone, it is not taken for the other.
execute_process(COMMAND pkg-config --exists Qt${other_qt}Widgets RESULT_VARIABLE other_is_missing)
if(NOT other_is_missing)
    find_tavik("${prefix}" ${QT} -D FIRST=${QT})
    refuse_tavik("for Qt ${QT}, where the project has chosen Qt ${other_qt}" -D FIRST=${other_qt})
    build_library(library-of-other ${other_qt})
    foreach(library IN ITEMS library-ON library-of-other)
        run("${CMAKE_COMMAND}" --install "${SCRATCH}/${library}" --prefix "${SCRATCH}/both")
    endforeach()
    find_tavik("${SCRATCH}/both" 5)
    find_tavik("${SCRATCH}/both" 5 -D FIRST=5)
    find_tavik("${SCRATCH}/both" 6 -D FIRST=6)
    find_tavik("${SCRATCH}/both" 6 -D FIRST=newest)
    find_tavik("${SCRATCH}/both" 6 -D TAVIK_QT=6)
endif()

foreach(folder IN ITEMS "${prefix}" "${SCRATCH}/static")
    file(GLOB_RECURSE module "${folder}/*/${name}.pc")
    get_filename_component(modules "${module}" DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} "${modules}")
    set(ENV{LD_LIBRARY_PATH} "${modules}/..")
    run(pkg-config --cflags --libs ${name})
    separate_arguments(flags UNIX_COMMAND "${output}")
    run(c++ -std=c++17 -fPIC "${consumer}/main.cpp" -o "${SCRATCH}/by-pkg-config" ${flags})
    run("${SCRATCH}/by-pkg-config")
endforeach()
unset(ENV{LD_LIBRARY_PATH})

include("${CMAKE_CURRENT_LIST_DIR}/docblocks.cmake")
