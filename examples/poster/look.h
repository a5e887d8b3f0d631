#ifndef POSTER_LOOK_H
#define POSTER_LOOK_H

#include <QColor>

class QApplication;
class QWidget;
class TavikButton;
class TavikComboBox;
class TavikLabel;

/// What the application looks like around the controls, and the sizes that it gives them, in rem.
namespace Look {

constexpr QColor Ground{0xe9, 0xec, 0xeb};
constexpr double FieldHeight = 2.5;
constexpr double Gap = 1;

/// Takes a style and a font that are the same on every desktop. Works when the rem is known.
void apply(QApplication &app);

/// A label whose text begins where it stands.
TavikLabel *label(const QString &text);

/// A button of a width in rem, as high as a field.
TavikButton *button(const QString &text, double remWidth, bool isOutlined = true);

/// A place of a width in rem for a combo box, as high as a field.
QWidget *place(TavikComboBox *combo, double remWidth);

} // namespace Look

#endif
