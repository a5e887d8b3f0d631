#ifndef TAVIK_POPUPSHADOW_P_H
#define TAVIK_POPUPSHADOW_P_H

#include <QGraphicsDropShadowEffect>
#include <QImage>

/// A drop shadow that is blurred once, for a widget whose outline rarely changes.
///
/// The toolkit's effect renders the whole widget and blurs it anew whenever a child repaints. This one keeps the
/// shadow and lets the widget draw only what is dirty over it. Antialiased edges may differ by two levels.
class PopupShadow : public QGraphicsDropShadowEffect
{
    Q_OBJECT

public:
    using QGraphicsDropShadowEffect::QGraphicsDropShadowEffect;

    /// To be called when the widget's outline has changed: the next repaint makes the shadow anew.
    void outlineChanged();

protected:
    void draw(QPainter *painter) override;
    void sourceChanged(ChangeFlags flags) override;

private:
    QImage makeShadow(const QPixmap &source, const QPoint &sourcePos);

    QImage m_shadow; // null while it has to be made
};

#endif
