#include "postersizes.h"

#include <QCoreApplication>

QVector<PosterSize> posterSizes()
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("PosterSizes", text); };
    return {
        {QStringLiteral("full-hd"), tr(QT_TRANSLATE_NOOP("PosterSizes", "Full HD")), {1920, 1080}},
        {QStringLiteral("ultra-hd"), tr(QT_TRANSLATE_NOOP("PosterSizes", "Ultra HD")), {3840, 2160}},
        {QStringLiteral("laptop"), tr(QT_TRANSLATE_NOOP("PosterSizes", "Laptop")), {1366, 768}},
        {QStringLiteral("phone"), tr(QT_TRANSLATE_NOOP("PosterSizes", "Phone")), {1080, 1920}},
        {QStringLiteral("square"), tr(QT_TRANSLATE_NOOP("PosterSizes", "Square")), {1080, 1080}},
        {QStringLiteral("a4"), tr(QT_TRANSLATE_NOOP("PosterSizes", "A4 sheet")), {2480, 3508}},
    };
}
