#ifndef TAVIK_POPUPSHADOW_P_H
#define TAVIK_POPUPSHADOW_P_H

#include <QGraphicsDropShadowEffect>
#include <QImage>

class QWidget;

/// A drop shadow that is blurred once, for a widget whose outline rarely changes.
///
/// Whenever a child repaints, the toolkit's effect blurs the whole widget anew, and any effect makes all that
/// lies between two dirty children repaint too. So this one works only while it takes a picture of the shadow,
/// and the widget paints that picture under itself. Antialiased edges may differ by two levels.
class PopupShadow : public QGraphicsDropShadowEffect
{
    Q_OBJECT

public:
    /// A black shadow all around a widget, to which it still has to be given by setGraphicsEffect(). The radius is in
    /// pixels.
    PopupShadow(QWidget *widget, int radius);

    /// The shadow of a widget, or null if the application has set another effect.
    static PopupShadow *of(const QWidget *widget);

    /// To be called when the widget's outline has changed.
    void outlineChanged();

    /// Makes the picture of the shadow, unless there is one for the outline and the widget's screen. Not to be
    /// called while the widget is painted.
    void prepare();

    /// Paints the picture; to be called by the widget's paint event before all else.
    void paint(QPainter *painter) const;

private:
    QWidget *m_widget;
    QImage m_shadow; // null while it has to be made
};

#endif
