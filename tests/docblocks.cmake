# The code in README.md and docs/*.md, word for word, against the installed package; part of package.cmake.
#
# A cmake block is a whole CMakeLists.txt, of a target named app. A cpp block with a main() is a whole program:
# each program of a page is built by each CMakeLists.txt of the page, and by that of the start page where it has
# none. Any other cpp block that begins with an include is a source file, and the rest are fragments of a
# member function of a window; these two kinds become one program, which runs them all.
set(start "${SOURCE}/docs/start.md")
set(blocks "${SCRATCH}/blocks")

# write_block(<file> <text>): leaves a file as old as it is if it says the same already.
function(write_block file text)
    set(before "")
    if(EXISTS "${file}")
        file(READ "${file}" before)
    endif()
    if(NOT text STREQUAL before)
        file(WRITE "${file}" "${text}")
    endif()
endfunction()

# code_blocks(<page> <language> <result>): writes each block of a language to a file of its own.
function(code_blocks page language result)
    file(READ "${page}" rest)
    get_filename_component(name "${page}" NAME_WE)
    set(fence "\n```${language}\n")
    string(LENGTH "${fence}" fence_length)
    set(files "")
    string(FIND "${rest}" "${fence}" begin)
    while(NOT begin EQUAL -1)
        math(EXPR begin "${begin} + ${fence_length}")
        string(SUBSTRING "${rest}" ${begin} -1 rest)
        string(FIND "${rest}" "\n```" end)
        string(SUBSTRING "${rest}" 0 ${end} block)
        list(LENGTH files number)
        set(file "${blocks}/${name}-${number}.${language}")
        write_block("${file}" "${block}\n")
        list(APPEND files "${file}")
        string(FIND "${rest}" "${fence}" begin)
    endwhile()
    set(${result} "${files}" PARENT_SCOPE)
endfunction()

# build_application(<name> <CMakeLists.txt> <main.cpp>): into SCRATCH/<name>, beside a form that it may use.
function(build_application name lists program)
    set(folder "${SCRATCH}/${name}-source")
    configure_file("${lists}" "${folder}/CMakeLists.txt" COPYONLY)
    configure_file("${program}" "${folder}/main.cpp" COPYONLY)
    configure_file("${SOURCE}/tests/designer/form.ui" "${folder}/form.ui" COPYONLY)
    configure_and_build(${name} "${folder}" -D CMAKE_PREFIX_PATH=${prefix})
endfunction()

code_blocks("${start}" cmake start_lists)
set(includes "")
set(classes "")
set(calls "")
file(GLOB pages "${SOURCE}/docs/*.md")
foreach(page IN LISTS pages ITEMS "${SOURCE}/README.md")
    set(programs "")
    code_blocks("${page}" cpp sources)
    foreach(source IN LISTS sources)
        file(READ "${source}" text)
        get_filename_component(name "${source}" NAME_WE)
        string(MAKE_C_IDENTIFIER "${name}" class)
        if(text MATCHES "int main\\(")
            list(APPEND programs "${source}")
        elseif(text MATCHES "^#include")
            string(APPEND includes "#include \"${source}\"\n")
        else()
            string(APPEND classes "struct ${class} : QWidget { void run()\n{\n#include \"${source}\"\n} };\n")
            string(APPEND calls "    wired += show<${class}>();\n")
        endif()
    endforeach()

    code_blocks("${page}" cmake lists)
    if(NOT lists)
        set(lists "${start_lists}")
    endif()
    foreach(program IN LISTS programs)
        foreach(list IN LISTS lists)
            get_filename_component(name "${program}" NAME_WE)
            get_filename_component(list_name "${list}" NAME_WE)
            build_application("${name}-by-${list_name}" "${list}" "${program}")
            # It shows a window and waits for its user: to be stopped from outside is what it does when all
            # is well.
            execute_process(COMMAND "${SCRATCH}/${name}-by-${list_name}/app" TIMEOUT 2
                RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
            if(NOT result MATCHES "timeout")
                message(FATAL_ERROR "The application of ${page} ended by itself (${result}):\n${output}")
            endif()
        endforeach()
    endforeach()
endforeach()

write_block("${blocks}/fragments.cpp" "#include <Tavik/Tavik>
#include <QtWidgets>
#include <cstdio>
${includes}${classes}
// What readers wire as the pages do takes whole hexadecimal values and drops half-typed ones. Returns how many
// controls that were.
int typeColors(const QWidget &window)
{
    auto *popup = window.findChild<TavikColorPopup *>();
    const auto buttons = popup ? window.findChildren<TavikColorButton *>() : QList<TavikColorButton *>();
    for (TavikColorButton *button : buttons) {
        QColor typed(\"#123456\");
        typed.setAlpha(button->currentColor().alpha()); // which a typed value keeps
        button->click();
        auto *hex = popup->findChild<TavikLineEdit *>();
        hex->setText(\"123456\");
        hex->setText(\"12345\");
        if (button->currentColor().rgba() != typed.rgba())
            qWarning(\"A half-typed colour arrives\");
        popup->close();
    }
    return buttons.size();
}

template <class Window>
int show()
{
    Window window;
    window.run();
    window.show();
    QCoreApplication::processEvents();
    return typeColors(window);
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
        if (text.startsWith(\"This plugin does not support\")) // the headless one
            return;
        std::puts(qPrintable(text));
        std::exit(1);
    });
    LenConverter::initRem();
    int wired = 0;
${calls}    if (wired == 0)
        qWarning(\"No page shows a wiring\");
}
")
build_application(fragments "${start_lists}" "${blocks}/fragments.cpp")
# A message of the toolkit is a failure.
run("${SCRATCH}/fragments/app")
