#include "access/controltable_p.h"

#include "access/keys/partkeys_p.h"
#include "access/keys/popupkeys_p.h"
#include "access/keys/squarekeys_p.h"
#include "access/keys/titlekeys_p.h"
#include "access/screenreader/accessibleaddbutton_p.h"
#include "access/screenreader/accessiblecolorbutton_p.h"
#include "access/screenreader/accessiblepalette_p.h"
#include "access/screenreader/accessiblepanel_p.h"
#include "access/screenreader/accessibleparts_p.h"
#include "access/screenreader/accessiblesquare_p.h"
#include "buttons/tavikbutton.h"
#include "color/gradientparts_p.h"
#include "color/paletteparts_p.h"
#include "color/popupparts_p.h"
#include "color/squarepoint_p.h"
#include "color/tavikcolorbutton.h"
#include "color/tavikcolorpicker.h"
#include "color/tavikcolorpopup.h"
#include "color/tavikcolorwell.h"
#include "color/tavikgradientbar.h"
#include "containers/paneltitle_p.h"
#include "containers/tavikexpandable.h"

namespace {

struct Row
{
    const QMetaObject *control;
    void (*giveKeys)(QWidget *);
    QAccessibleInterface *(*tell)(QWidget *);
};

template <class Control, class Parts, class Keys>
void makeKeys(QWidget *widget)
{
    auto *control = static_cast<Control *>(widget);
    new Keys(control, std::make_unique<Parts>(control));
}

template <class Control, class Parts, class Interface>
QAccessibleInterface *makeInterface(QWidget *widget)
{
    auto *control = static_cast<Control *>(widget);
    return new Interface(control, std::make_unique<Parts>(control));
}

/// A class with parts.
template <class Control, class Parts, class Keys, class Interface>
constexpr Row row()
{
    return {&Control::staticMetaObject, makeKeys<Control, Parts, Keys>,
            makeInterface<Control, Parts, Interface>};
}

QAccessibleInterface *colorButton(QWidget *widget)
{
    return new AccessibleColorButton(static_cast<TavikColorButton *>(widget));
}

QAccessibleInterface *popup(QWidget *widget)
{
    return new QAccessibleWidget(widget, QAccessible::Dialog);
}

/// All other buttons are told by the toolkit.
QAccessibleInterface *addButton(QWidget *widget)
{
    const bool isAddButton = qobject_cast<TavikColorWell *>(widget->parent());
    return isAddButton ? new AccessibleAddButton(static_cast<TavikButton *>(widget)) : nullptr;
}

constexpr Row table[] = {
    row<TavikColorPicker, SquarePoint, SquareKeys, AccessibleSquare>(),
    row<TavikColorWell, PaletteParts, PartKeys, AccessiblePalette>(),
    row<TavikGradientBar, GradientParts, PartKeys, AccessibleParts>(),
    row<TavikExpandable, PanelTitle, TitleKeys, AccessiblePanel>(),
    {&TavikColorPopup::staticMetaObject, makeKeys<TavikColorPopup, PopupParts, PopupKeys>, popup},
    {&TavikColorButton::staticMetaObject, nullptr, colorButton},
    {&TavikButton::staticMetaObject, nullptr, addButton},
};

} // namespace

void ControlTable::giveKeys(QWidget *control)
{
    for (const Row &row : table) {
        if (row.giveKeys && row.control->cast(control))
            row.giveKeys(control);
    }
}

QAccessibleInterface *ControlTable::interfaceFor(const QString &className, QObject *object)
{
    for (const Row &row : table) {
        if (className == QLatin1String(row.control->className()))
            return row.tell(static_cast<QWidget *>(object));
    }
    return nullptr;
}
