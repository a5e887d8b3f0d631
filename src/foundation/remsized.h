#ifndef TAVIK_REMSIZED_H
#define TAVIK_REMSIZED_H

#include <QSizeF>

#include <Tavik/LenConverter>

/// The sizing setters that most controls share, as a layer between a toolkit class and ours:
/// `class TavikButton : public RemSized<QPushButton>`.
///
/// All lengths are in rem and are turned into pixels once, when a setter is called. Each setter fixes
/// the size, so that a layout neither grows nor shrinks the control; what is negative counts as 0.
/// \code
/// button->setRemSize(8, 2.5);   // 96 by 30 pixels at 12 pixels per rem
/// \endcode
template <class Base>
class RemSized : public Base
{
public:
    using Base::Base;

    /// Fixes the width, in rem.
    void setRemWidth(double rem) { this->setFixedWidth(LenConverter::remToPx(rem)); }

    /// Fixes the height, in rem.
    void setRemHeight(double rem) { this->setFixedHeight(LenConverter::remToPx(rem)); }

    /// Fixes width and height, in rem.
    void setRemSize(double width, double height)
    {
        setRemWidth(width);
        setRemHeight(height);
    }

    /// Fixes width and height, in rem.
    void setRemSize(const QSizeF &size) { setRemSize(size.width(), size.height()); }
};

#endif
