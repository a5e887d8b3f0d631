#include "foundation/lenconverter.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>
#include <limits>

namespace {

constexpr int designWidth = 1920;
constexpr double designRem = 12.0;

struct Band
{
    int maxWidth;
    int rem;
};
constexpr Band bands[] = {
    {1600, 10}, {2048, 12}, {2560, 18}, {3200, 24}, {std::numeric_limits<int>::max(), 30},
};

QSize availableSize()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableSize() : QSize(0, 0);
}

} // namespace

int LenConverter::m_rem = 0;

void LenConverter::initRem()
{
    const int width = deviceWidth();
    const Band *band = bands;
    while (width > band->maxWidth)
        ++band;
    m_rem = band->rem;
}

int LenConverter::rem()
{
    return m_rem;
}

int LenConverter::deviceWidth()
{
    return availableSize().width();
}

int LenConverter::deviceHeight()
{
    return availableSize().height();
}

int LenConverter::designReference()
{
    return designWidth;
}

double LenConverter::scale()
{
    return deviceWidth() / double(designWidth);
}

int LenConverter::round(double value)
{
    if (std::isnan(value))
        return 0;
    // Negative fractions never reach one half: that is why no standard rounding function fits.
    const double whole = std::trunc(value);
    const double rounded = value - whole >= 0.5 ? std::trunc(value + 1) : whole;
    return int(
        qBound(double(std::numeric_limits<int>::min()), rounded, double(std::numeric_limits<int>::max())));
}

int LenConverter::remToPx(double rem)
{
    return round(m_rem * rem);
}

QString LenConverter::remToStrPx(double rem)
{
    return QString::number(remToPx(rem));
}

QString LenConverter::strRemToStrPx(const QString &rem)
{
    return remToStrPx(rem.toDouble());
}

int LenConverter::iniRemToPx(double designPx)
{
    return round(m_rem * (designPx / designRem));
}

QSize LenConverter::iniRemToPxSz(double width, double height)
{
    return {iniRemToPx(width), iniRemToPx(height)};
}

QString LenConverter::iniRemToStrPx(double designPx)
{
    return QString::number(iniRemToPx(designPx));
}

double LenConverter::pxToRem(int px)
{
    return double(px) / m_rem;
}

QString LenConverter::pxToStrRem(int px)
{
    return QString::number(pxToRem(px), 'g', 6);
}

QString LenConverter::strPxToStrRem(const QString &px)
{
    return pxToStrRem(px.toInt());
}
