# Which Qt the library is built with, and what it is called on disk: each has names of its own, so that both can be
# installed into one prefix. Qt 5 keeps the plain ones.

set(TAVIK_QT "" CACHE STRING
    "5 or 6: build with this Qt. Empty: the one that the project around has found, else 5 where it is there")
set_property(CACHE TAVIK_QT PROPERTY STRINGS "" 5 6)

if(NOT TAVIK_QT)
    if(TARGET Qt6::Core AND NOT TARGET Qt5::Core)
        set(TAVIK_QT 6)
    else()
        find_package(Qt5 5.15 QUIET COMPONENTS Core Gui Widgets)
        set(TAVIK_QT 5)
        if(NOT Qt5_FOUND)
            set(TAVIK_QT 6)
        endif()
    endif()
endif()

if(TAVIK_QT EQUAL 5)
    set(TAVIK_QT_OLDEST 5.15)
    set(TAVIK_NAME Tavik)
    set(TAVIK_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
elseif(TAVIK_QT EQUAL 6)
    set(TAVIK_QT_OLDEST 6.4)
    set(TAVIK_NAME TavikQt6)
    set(TAVIK_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/TavikQt6")
else()
    message(FATAL_ERROR "TAVIK_QT is 5 or 6, not \"${TAVIK_QT}\"")
endif()
message(STATUS "Tavik is built with Qt ${TAVIK_QT}")

find_package(Qt${TAVIK_QT} ${TAVIK_QT_OLDEST} REQUIRED COMPONENTS Core Gui Widgets)
