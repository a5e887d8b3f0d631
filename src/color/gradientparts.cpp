#include "color/gradientparts_p.h"

#include "color/colorname_p.h"
#include "color/tavikgradientbar.h"

GradientParts::GradientParts(TavikGradientBar *bar)
    : m_bar(bar)
{
}

int GradientParts::count() const
{
    return PartCount;
}

QRect GradientParts::rect(int part) const
{
    switch (part) {
    case StartSquare:
        return m_bar->m_startSquare;
    case EndSquare:
        return m_bar->m_endSquare;
    case StartHandle:
        return handle(m_bar->m_startHandle, m_bar->m_startValue);
    default:
        return handle(m_bar->m_endHandle, m_bar->m_endValue);
    }
}

QString GradientParts::name(int part) const
{
    switch (part) {
    case StartSquare:
        return tr("Start color, %1").arg(ColorName::of(m_bar->m_startColor));
    case EndSquare:
        return tr("End color, %1").arg(ColorName::of(m_bar->m_endColor));
    case StartHandle:
        return tr("Start");
    default:
        return tr("End");
    }
}

void GradientParts::press(int part)
{
    if (part == StartSquare)
        m_bar->requestPopup(TavikGradientBar::StartSide, m_bar->m_startSquare, m_bar->m_startColor);
    else if (part == EndSquare)
        m_bar->requestPopup(TavikGradientBar::EndSide, m_bar->m_endSquare, m_bar->m_endColor);
}

bool GradientParts::hasValue(int part) const
{
    return part == StartHandle || part == EndHandle;
}

int GradientParts::value(int part) const
{
    return part == StartHandle ? m_bar->m_startValue : m_bar->m_endValue;
}

void GradientParts::setValue(int part, int value)
{
    // The bar drops a step that would reach the other handle, which may stand at any number.
    const int lowest = TavikGradientBar::minValue;
    const int highest = TavikGradientBar::maxValue;
    if (part == StartHandle)
        m_bar->dragStart(qBound(lowest, value, qMax(m_bar->m_endValue, lowest + 1) - 1));
    else if (part == EndHandle)
        m_bar->dragEnd(qBound(qMin(m_bar->m_startValue, highest - 1) + 1, value, highest));
}

void GradientParts::follow(QObject *context, const std::function<void(int)> &changed) const
{
    QObject::connect(m_bar, &TavikGradientBar::selectedStartColor, context, [=] { changed(StartHandle); });
    QObject::connect(m_bar, &TavikGradientBar::selectedEndColor, context, [=] { changed(EndHandle); });
}

/// Where the next paint will put the handle: a value is ahead of its handle until then.
QRect GradientParts::handle(const QRect &painted, int value) const
{
    QRect handle = painted;
    handle.moveCenter(m_bar->handleCenter(value));
    return handle;
}
