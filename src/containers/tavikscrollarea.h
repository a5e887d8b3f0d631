#ifndef TAVIK_TAVIKSCROLLAREA_H
#define TAVIK_TAVIKSCROLLAREA_H

#include <QScrollArea>

#include <Tavik/tavik_export.h>

/// A scroll area with a border, the library's vertical scroll bar and no horizontal one.
///
/// \code
/// auto *area = new TavikScrollArea("1", "#d3d3d3", "#ffffff", this);
/// area->setRemSz(30, 400);   // 30 rem wide, 400 pixels high
/// area->setWidgetResizable(true);
/// area->setWidget(form);
/// \endcode
///
/// The look is decided once, by the constructor.
class TAVIK_EXPORT TavikScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// A scroll area with a look: the border's width in pixels without a unit ("1"), and two colours as a
    /// style sheet takes them. Nothing of this is checked.
    TavikScrollArea(const QString &borderWidth, const QString &borderColor, const QString &bgColor,
                    QWidget *parent = nullptr);

    /// A white scroll area with a grey border of 1 pixel, as Qt Designer makes it.
    explicit TavikScrollArea(QWidget *parent = nullptr);

    /// Fixes the width, in rem; what is negative counts as 0.
    void setRemWidth(double rem);

    /// Fixes the height, in pixels in spite of the name: the fraction is cut off, a NaN counts as 0.
    void setRemHeight(double height);

    /// Fixes the width, in rem, and the height, in pixels, as setRemWidth() and setRemHeight() do.
    void setRemSz(double remWidth, double height);
};

#endif
