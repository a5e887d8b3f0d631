# The package as its users meet it. Installs the library into a scratch prefix, built without anything that
# only the tests need, and then builds and runs against it: a small consumer by find_package, the same one
# by pkg-config and by add_subdirectory, the example, and the code that README and guide show, word for word.
cmake_minimum_required(VERSION 3.18)

set(prefix "${SCRATCH}/prefix")
set(consumer "${CMAKE_CURRENT_LIST_DIR}/consumer")
set(ENV{QT_QPA_PLATFORM} offscreen)
# What is installed is always fresh; what is built is built again where something has changed.
file(REMOVE_RECURSE "${prefix}" "${SCRATCH}/static")

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
    run("${CMAKE_COMMAND}" -S "${source}" -B "${SCRATCH}/${name}" -G "${GENERATOR}"
        -D CMAKE_BUILD_TYPE=Release ${ARGN})
    run("${CMAKE_COMMAND}" --build "${SCRATCH}/${name}")
endfunction()

# The library, shared and static, with everything out of reach that only tests and benchmarks may look for. All
# its sources are built as one; by add_subdirectory they are built one by one.
foreach(shared IN ITEMS ON OFF)
    configure_and_build(library-${shared} "${SOURCE}" -D BUILD_SHARED_LIBS=${shared}
        -D CMAKE_UNITY_BUILD=ON -D CMAKE_UNITY_BUILD_BATCH_SIZE=0
        -D BUILD_TESTING=OFF -D TAVIK_BUILD_GALLERY=OFF -D TAVIK_BUILD_EXAMPLES=OFF
        -D CMAKE_DISABLE_FIND_PACKAGE_Qt5Test=ON -D CMAKE_DISABLE_FIND_PACKAGE_benchmark=ON)
endforeach()
run("${CMAKE_COMMAND}" --install "${SCRATCH}/library-ON" --prefix "${prefix}")
run("${CMAKE_COMMAND}" --install "${SCRATCH}/library-OFF" --prefix "${SCRATCH}/static")

file(GLOB_RECURSE installed RELATIVE "${prefix}" "${prefix}/*")
if(NOT installed MATCHES "libTavik\\.so\\.0\\.1(;|$)" OR installed MATCHES "_p\\.h")
    message(FATAL_ERROR "Wrong files were installed: ${installed}")
endif()
foreach(language IN ITEMS de fr zh_CN)
    if(NOT "share/tavik/translations/tavik_${language}.qm" IN_LIST installed)
        message(FATAL_ERROR "The translation ${language} was not installed: ${installed}")
    endif()
endforeach()
file(GLOB library "${prefix}/*/libTavik.so" "${prefix}/*/*/libTavik.so")
run(nm -DC --defined-only "${library}")
if(output MATCHES "Sheet::" OR NOT output MATCHES "LenConverter::m_rem")
    message(FATAL_ERROR "Wrong symbols are exported:\n${output}")
endif()

configure_and_build(by-find-package "${consumer}" -D CMAKE_PREFIX_PATH=${prefix} -D WAY=find_package)
run("${SCRATCH}/by-find-package/consumer")
configure_and_build(static-by-find-package "${consumer}" -D CMAKE_PREFIX_PATH=${SCRATCH}/static -D WAY=find_package)
run("${SCRATCH}/static-by-find-package/consumer")
# Qt's Linguist tools are no condition.
configure_and_build(by-add-subdirectory "${consumer}" -D TAVIK_SOURCE=${SOURCE} -D WAY=add_subdirectory
    -D CMAKE_DISABLE_FIND_PACKAGE_Qt5LinguistTools=ON)
run("${SCRATCH}/by-add-subdirectory/consumer")

# The example stands alone too, and sees nothing but what is installed.
configure_and_build(example "${SOURCE}/examples/poster" -D CMAKE_PREFIX_PATH=${prefix})
run("${SCRATCH}/example/tavik-poster" --rem 10 --picture "${SCRATCH}/poster.png")

# A version that promises another interface must not be taken.
execute_process(
    COMMAND "${CMAKE_COMMAND}" -S "${consumer}" -B "${SCRATCH}/too-new" -G "${GENERATOR}"
        -D CMAKE_PREFIX_PATH=${prefix} -D WAY=find_package -D VERSION=99.0
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
if(result EQUAL 0)
    message(FATAL_ERROR "find_package(Tavik 99.0) was satisfied")
endif()

foreach(folder IN ITEMS "${prefix}" "${SCRATCH}/static")
    file(GLOB_RECURSE module "${folder}/*/Tavik.pc")
    get_filename_component(modules "${module}" DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} "${modules}")
    set(ENV{LD_LIBRARY_PATH} "${modules}/..")
    run(pkg-config --cflags --libs Tavik)
    separate_arguments(flags UNIX_COMMAND "${output}")
    run(c++ -std=c++17 -fPIC "${consumer}/main.cpp" -o "${SCRATCH}/by-pkg-config" ${flags})
    run("${SCRATCH}/by-pkg-config")
endforeach()
unset(ENV{LD_LIBRARY_PATH})

include("${CMAKE_CURRENT_LIST_DIR}/docblocks.cmake")
