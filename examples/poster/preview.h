#ifndef POSTER_PREVIEW_H
#define POSTER_PREVIEW_H

#include <QImage>
#include <QWidget>

class Poster;

/// Shows the poster as large as there is room for it, at each change.
///
/// The photograph is scaled once for each of its sizes: while a colour is dragged, only the gradient and the
/// caption are painted over it.
class Preview : public QWidget
{
    Q_OBJECT

public:
    explicit Preview(const Poster *poster, QWidget *parent = nullptr);

    /// Where the poster stands, in pixels.
    QRect posterRect() const;

Q_SIGNALS:
    /// The poster is seen at another share of its size, 1.0 for the whole.
    void scaleChanged(double scale);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void onChanged();
    void updateCover(const QSize &size);
    void paintShadow(QPainter &painter) const;

    const Poster *m_poster;
    QImage m_cover;
    QString m_coverName;
};

#endif
