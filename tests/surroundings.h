#ifndef TAVIK_TESTS_SURROUNDINGS_H
#define TAVIK_TESTS_SURROUNDINGS_H

#include <QByteArray>

/// Makes the process, and those that it starts, independent of the language and the scale of whoever runs it.
/// For the beginning of main().
inline void forgetSurroundings()
{
    qputenv("LC_ALL", "C.UTF-8");
    for (const char *name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
                             "QT_ENABLE_HIGHDPI_SCALING", "QT_FONT_DPI"})
        qunsetenv(name);
}

#endif
