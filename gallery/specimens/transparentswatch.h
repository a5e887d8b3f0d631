#ifndef GALLERY_TRANSPARENTSWATCH_H
#define GALLERY_TRANSPARENTSWATCH_H

#include <QColor>
#include <QWidget>

/// A colour in front of the alpha texture, which shows where the colour is transparent.
class TransparentSwatch : public QWidget
{
    Q_OBJECT

public:
    explicit TransparentSwatch(
        const QColor &color, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
};

#endif
