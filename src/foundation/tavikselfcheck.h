#ifndef TAVIK_TAVIKSELFCHECK_H
#define TAVIK_TAVIKSELFCHECK_H

#include <QStringList>

#include <Tavik/tavik_export.h>

/// Tells at start-up what would fail silently later.
///
/// \code
/// QApplication app(argc, argv);
/// LenConverter::initRem();
/// for (const QString &problem : TavikSelfCheck::problems())
///     qWarning().noquote() << problem;
/// \endcode
///
/// None of it keeps the controls from running, and nothing here reports anything by itself.
class TAVIK_EXPORT TavikSelfCheck
{
public:
    /// The findings as English sentences for a developer, empty when all is well. Found are: no plugin for SVG
    /// pictures, LenConverter::initRem() not called, resources of the library that can't be read, no
    /// primary screen, and a platform that gives no picture of its screen, as Wayland. Without a
    /// QGuiApplication there is no screen either. Takes a picture of one pixel of the screen.
    static QStringList problems();
};

#endif
