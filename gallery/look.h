#ifndef GALLERY_LOOK_H
#define GALLERY_LOOK_H

#include <QColor>
#include <QFont>

class QApplication;
class QWidget;
class TavikLabel;

/// What the gallery looks like around the controls: colours, fonts and the distances of its grid.
namespace Look {

constexpr QColor Ground{0xf5, 0xf6, 0xf6};
constexpr QColor Tint{0xf8, 0xf9, 0xf9};
constexpr QColor Line{0xe4, 0xe4, 0xe4};
constexpr QColor Text{0x40, 0x40, 0x40};
constexpr QColor Warning{0xff, 0xf4, 0xce};
constexpr QColor Accent{0x08, 0xa2, 0x74};

/// Distance between cards and from the edges of a pane, in rem.
constexpr double Gap = 2;
/// Distance between what belongs together, in rem.
constexpr double SmallGap = 1;

/// Fixes style, palette and font, so that pictures are the same on every desktop.
void apply(QApplication &app);

/// Sets the pixels per rem, and the application's font to the size of ordinary text: what a style sheet
/// measures in em follows that font, such as step buttons, arrows and scroll bars.
void setRem(int rem);

/// The font of code: 1 rem, monospaced.
QFont codeFont();

/// A label whose text begins where it stands: as a styled one, it would be indented beside controls.
TavikLabel *flush(TavikLabel *label);

/// A heading of the given size in rem.
TavikLabel *heading(const QString &text, double rem);

/// Running text, which wraps.
TavikLabel *paragraph(const QString &text);

/// A widget with its caption beneath, both from the left.
QWidget *captioned(QWidget *widget, const QString &caption);

/// A name, a control and what it reports, one below the other, from the left.
QWidget *live(const QString &name, QWidget *control, QWidget *report);

/// Widgets side by side, at their own sizes, from the left; in a new widget, or in one that has no layout yet.
QWidget *row(std::initializer_list<QWidget *> widgets, QWidget *row = nullptr);

} // namespace Look

#endif
