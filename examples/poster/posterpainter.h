#ifndef POSTER_POSTERPAINTER_H
#define POSTER_POSTERPAINTER_H

#include <QImage>
#include <QLinearGradient>

class Photograph;
class QPainter;
struct PosterSettings;

/// Paints posters. What it paints depends on its arguments alone, so that preview and export agree.
namespace PosterPainter {

/// A poster of any size, in pixels.
QImage picture(const PosterSettings &settings, const Photograph &photograph, const QSize &size);

/// Paints a poster from (0, 0) to a size, over the photograph as Photograph::cover() gives it.
void paint(QPainter &painter, const QSize &size, const PosterSettings &settings, const QImage &cover);

/// The gradient across a size: from one corner to the opposite one where it runs diagonally.
QLinearGradient gradient(const PosterSettings &settings, const QSizeF &size);

} // namespace PosterPainter

#endif
