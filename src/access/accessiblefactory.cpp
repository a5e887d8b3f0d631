// Makes the library's controls known to screen readers, as long as the library is loaded.

#include "access/accessibleaddbutton_p.h"
#include "access/accessiblecolorbutton_p.h"
#include "access/accessiblepalette_p.h"
#include "access/accessiblepanel_p.h"
#include "access/accessiblesquare_p.h"
#include "buttons/tavikbutton.h"
#include "color/tavikcolorbutton.h"
#include "color/tavikcolorpicker.h"
#include "color/tavikcolorpopup.h"
#include "color/tavikcolorwell.h"
#include "color/tavikgradientbar.h"
#include "containers/tavikexpandable.h"

/// The toolkit asks for each class of an object, beginning with the most derived one.
///
/// It has a plain name, by which the linker is told to take it from a static library.
extern "C" QAccessibleInterface *tavikAccessibleInterface(const QString &className, QObject *object)
{
    const auto is = [&](const QMetaObject &meta) { return className == QLatin1String(meta.className()); };
    if (is(TavikColorPicker::staticMetaObject))
        return new AccessibleSquare(static_cast<TavikColorPicker *>(object));
    if (is(TavikColorWell::staticMetaObject))
        return new AccessiblePalette(static_cast<TavikColorWell *>(object));
    if (is(TavikGradientBar::staticMetaObject))
        return new AccessibleParts(static_cast<TavikGradientBar *>(object), QAccessible::Grouping);
    if (is(TavikExpandable::staticMetaObject))
        return new AccessiblePanel(static_cast<TavikExpandable *>(object));
    if (is(TavikColorButton::staticMetaObject))
        return new AccessibleColorButton(static_cast<TavikColorButton *>(object));
    if (is(TavikColorPopup::staticMetaObject))
        return new QAccessibleWidget(static_cast<TavikColorPopup *>(object), QAccessible::Dialog);
    if (is(TavikButton::staticMetaObject) && qobject_cast<TavikColorWell *>(object->parent()))
        return new AccessibleAddButton(static_cast<TavikButton *>(object));
    return nullptr;
}

namespace {

const struct Installation
{
    Installation() { QAccessible::installFactory(tavikAccessibleInterface); }
    ~Installation() { QAccessible::removeFactory(tavikAccessibleInterface); }
} installation;

} // namespace
