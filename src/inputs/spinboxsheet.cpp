#include "inputs/spinboxsheet_p.h"

#include "foundation/sheet_p.h"

namespace {

// All spin boxes look alike.
constexpr char color[] = "#404040";
constexpr char disabledColor[] = "#e0e0e0";
constexpr char bgColor[] = "#ffffff";
constexpr char selectionBgColor[] = "#13b585";
constexpr char stepBgColor[] = "#c2c2c2";
constexpr char stepHoverBgColor[] = "#13b585";
constexpr char stepPressedBgColor[] = "#138765";
constexpr char borderColor[] = "#d3d3d3";
constexpr char hoverBorderColor[] = "#08a274";
constexpr char pressedBorderColor[] = "#08a274";
constexpr char borderWidth[] = "1";
constexpr char hoverBorderWidth[] = "1";
constexpr char pressedBorderWidth[] = "2";

/// Stands for the class's name in a sheet's selectors; no class and no value is called so.
constexpr char name[] = "@";

QString frame(const QString &fontSz)
{
    return Sheet::join({
        {"@ {color: ", color},
        {";background-color: ", bgColor},
        {";font-size: ", fontSz},
        {"px;border: ", borderWidth},
        {"px solid ", borderColor},
        {";selection-background-color: ", selectionBgColor},
        {";}@:hover {border: ", hoverBorderWidth},
        {"px solid ", hoverBorderColor},
        {";}@:pressed {border: ", pressedBorderWidth},
        {"px solid ", pressedBorderColor},
        {";}@:disabled,@:read-only {color: ", disabledColor},
    });
}

QString named(QString sheet, const char *className)
{
    return sheet.replace(QLatin1String(name), QLatin1String(className));
}

} // namespace

QString SpinboxSheet::withButtons(const char *className, const QString &fontSz, const char *beforeDownFill)
{
    const QString buttons = Sheet::join({
        {";}@::up-button,@::up-button:disabled {subcontrol-origin: border;subcontrol-position: top right; "
         "width: 1.00em;background: ",
         stepBgColor},
        {";border: none;margin-top: 1px;margin-right: 1px;margin-bottom: 0px;margin-left: 0px;}"
         "@::up-button:hover {background: ",
         stepHoverBgColor},
        {";}@::up-button:pressed {background: ", stepPressedBgColor},
        {";}@::up-arrow {image: url(:/SpinboxArrow/images/arrow_up.svg);width: 0.5em;height: 0.3em;}"
         "@::up-arrow:disabled,@::up-arrow:off {image: url(:/SpinboxArrow/images/arrow_up_disabled.svg);}"
         "@::down-button {subcontrol-origin: border;subcontrol-position: bottom right;width: 1.00em;"
         "background: ",
         stepBgColor},
        {";border: none;margin-top: 0px;margin-right: 1px;margin-bottom: 1px;margin-left: 0px;}"
         "@::down-button:hover {",
         beforeDownFill},
        {"background: ", stepHoverBgColor},
        {";}@::down-button:pressed {", beforeDownFill},
        {"background: ", stepPressedBgColor},
        {";}@::down-arrow {image: url(:/SpinboxArrow/images/arrow_down.svg);width: 0.5em;height: 0.3em;}"
         "@::down-arrow:disabled,@::down-arrow:off "
         "{image: url(:/SpinboxArrow/images/arrow_down_disabled.svg);}"},
    });
    return named(frame(fontSz) + buttons, className);
}

QString SpinboxSheet::withoutButtons(const char *className, const QString &fontSz)
{
    const QString buttons = Sheet::join({
        {";}@::up-button,@::up-button:disabled {width: 0px;}@::up-button:hover {background: ",
         stepHoverBgColor},
        {";}@::up-button:pressed {background: ", stepPressedBgColor},
        {";}@::down-button {width: 0px;}@::down-button:hover {background: ", stepHoverBgColor},
        {";}@::down-button:pressed {background: ", stepPressedBgColor},
        {";}"},
    });
    return named(frame(fontSz) + buttons, className);
}
