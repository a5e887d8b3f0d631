# Brings the translation files in line with the texts of the sources, by the tool LUPDATE. With a directory
# SCRATCH it works on copies there, and fails if one of them changes or has a text without translation.
cmake_minimum_required(VERSION 3.18)

file(GLOB files "${CMAKE_CURRENT_LIST_DIR}/*.ts")
set(updated ${files})
if(SCRATCH)
    file(REMOVE_RECURSE "${SCRATCH}")
    file(COPY ${files} DESTINATION "${SCRATCH}")
    list(TRANSFORM updated REPLACE "^.*/" "${SCRATCH}/")
endif()

# Without line numbers a file changes only where a text does.
execute_process(
    COMMAND "${LUPDATE}" -silent -no-obsolete -locations none "${CMAKE_CURRENT_LIST_DIR}/../src" -ts ${updated}
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${LUPDATE} failed: ${result}")
endif()

if(SCRATCH)
    foreach(file copy IN ZIP_LISTS files updated)
        file(READ "${file}" present)
        file(READ "${copy}" wanted)
        if(NOT present STREQUAL wanted)
            message(SEND_ERROR "${file} is not what the sources ask for: build update-translations")
        elseif(present MATCHES "<translation type=|<translation></translation>")
            message(SEND_ERROR "${file} has texts that are not translated")
        endif()
    endforeach()
endif()
