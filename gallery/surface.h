#ifndef GALLERY_SURFACE_H
#define GALLERY_SURFACE_H

#include <QColor>
#include <QWidget>

/// A rounded ground with a thin border: the cards and tiles of the gallery.
///
/// It is painted instead of styled, as a parent's style sheet would reach the controls inside.
class Surface : public QWidget
{
    Q_OBJECT

public:
    Surface(const QColor &fill, const QColor &border, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_fill;
    QColor m_border;
};

#endif
