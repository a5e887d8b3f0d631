#include "actions.h"
#include "busy.h"
#include "stage.h"
#include "table.h"
#include "wild.h"

#include <Tavik/Tavik>

#include <tuple>

namespace {

using Wild::Number;
using Wild::Pixels;

using Call = std::function<void(QWidget *)>;

/// Draws the arguments of a call.
using Draw = std::function<Call(Random &)>;

/// A public function of a class.
struct Setter
{
    const char *className;
    QString name;
    Draw draw;
};

/// A call with arguments of these types, where the function's own would test too much or too little.
template <class Class, class... Arguments, class Member>
Draw drawn(Member member)
{
    return [=]([[maybe_unused]] Random &random) -> Call {
        // Braces, because only there the order of drawing is fixed.
        const std::tuple<Arguments...> arguments{Wild::draw<Arguments>(random)...};
        return [=](QWidget *widget) {
            const auto call = [=](const auto &...argument) {
                static_cast<void>((static_cast<Class *>(widget)->*member)(argument...));
            };
            std::apply(call, arguments);
        };
    };
}

template <class Class, class Result, class Owner, class... Arguments>
Setter rowOf(const QString &name, Result (Owner::*member)(Arguments...))
{
    return {Class::staticMetaObject.className(), name, drawn<Class, std::decay_t<Arguments>...>(member)};
}

template <class Class>
Setter rowOf(const QString &name, const Draw &draw)
{
    return {Class::staticMetaObject.className(), name, draw};
}

#define REM_SIZES                                                                                          \
    &C::setRemWidth, &C::setRemHeight, qOverload<double, double>(&C::setRemSize),                          \
        qOverload<const QSizeF &>(&C::setRemSize)

/// Ranges of a slider stay small, as over the whole range of int the toolkit divides by 0; and no setWrapping,
/// as its dial then divides by 0 where the range is a single value.
const std::vector<Setter> &setterTable()
{
    static std::vector<Setter> table;
    if (!table.empty())
        return table;
    ADD(TavikLabel, &C::initStyleProperties, &C::updateStyleSheet, &C::setColor, &C::setFontRemSz,
        &C::setRemWidth, &C::setRemHeight, &C::setRemSize, &C::setText)
    ADD(TavikButton, &C::initStyleProperties, &C::updateStyleSheet, &C::setFontRemSz,
        drawn<C, Pixels>(&C::setFontPxSz), &C::setIsPaintOverrided, &C::setBgColor, &C::setHoverBgColor,
        &C::setPressBgColor, &C::setCheckedBgColor, &C::setColor, &C::setHoverColor, &C::setCheckedColor,
        &C::setBorderColor, &C::setHoverBorderColor, &C::setPressBorderColor, &C::setCheckedBorderColor,
        &C::setBorderWidth, &C::setBorderRadius, &C::setMargin, &C::setIcon, &C::setText, &C::setCheckable,
        &C::setChecked, &C::click, &C::setRemWidth, &C::setRemHeight)
    ADD(TavikButtonGroup, &C::addTextButton, qOverload<const QString &>(&C::addIconButton),
        qOverload<const QIcon &>(&C::addIconButton), &C::addRadioButton, &C::setRemSpacing,
        drawn<C, Pixels>(&C::setPxSpacing), &C::setIsUncheckable, &C::setIconRemSz, &C::setIconPxSz,
        &C::setAlignment, &C::setCheckedId)
    ADD(TavikCheckBox, &C::setFontRemSz, &C::setIndicatorSz, &C::setFontColor, &C::updateStyleSheet,
        &C::setCheckState, &C::setTristate, &C::setText)
    ADD(TavikRadioButton, &C::setFontRemSz, &C::setIndicatorSz, &C::updateStyleSheet, &C::setChecked)
    ADD(TavikLineEdit, qOverload<const QString &>(&C::setContent), qOverload<int>(&C::setContent),
        drawn<C, Number>(qOverload<double>(&C::setContent)), &C::setIntRange, &C::setFontRemSz,
        drawn<C, Pixels>(&C::setFontPxSz), &C::updateStyleSheet, &C::initValidator, &C::setReadOnly,
        &C::setMaxLength, &C::setText, &C::clear, &C::selectAll, REM_SIZES)
    ADD(TavikSpinbox, &C::setFontRemSz, &C::updateStyleSheet, &C::updateStyleSheetHideStepBut, &C::setRange,
        &C::setValue, &C::setSingleStep, &C::setPrefix, &C::stepUp, REM_SIZES)
    ADD(TavikDoubleSpinbox, &C::setFontRemSz, &C::updateStyleSheet, &C::setRange,
        drawn<C, Number>(&C::setValue), drawn<C, Number>(&C::setSingleStep), &C::stepDown, REM_SIZES)
    ADD(TavikComboBox, &C::setFontRemSz, &C::updateStyleSheet, &C::addItems, &C::clear, &C::setCurrentIndex,
        &C::setEditable, &C::showPopup, &C::hidePopup, REM_SIZES)
    ADD(TavikFontFamilyComboBox, &C::initFontFamilies, &C::setFontRemSz, &C::clear, &C::setCurrentIndex,
        &C::setEditable, &C::setEditText, &C::showPopup, &C::hidePopup)
    ADD(TavikSlider, &C::updateStyleSheet, drawn<C, Pixels, Pixels>(&C::setRange), &C::setValue,
        &C::setOrientation, &C::setInvertedAppearance)
    ADD(TavikDial, drawn<C, Pixels, Pixels>(&C::setRange), &C::setValue, &C::setNotchesVisible)
    ADD(TavikSeperateLine, &C::clear, &C::setText)
    ADD(TavikContainer, &C::setSpacing, drawn<C, Pixels>(&C::addSpacing), &C::addStretch,
        drawn<C, Pixels>(&C::setContentMargin), &C::removeMargins,
        qOverload<Qt::Alignment>(&C::setAlignment), REM_SIZES)
    ADD(TavikExpandable, &C::setTitle, &C::setRemWidth, &C::setSpacing, &C::setRemExpandHeight,
        &C::updateExpandedHeight, &C::initAnimationStates, &C::expand, &C::unexpand,
        &C::onclickedExpanedRequest)
    ADD(TavikScrollArea, &C::setRemWidth, &C::setRemHeight, &C::setRemSz, &C::setWidgetResizable)
    ADD(TavikImageList, &C::setRemWidth, &C::setIconRemSz, &C::addImage, &C::clear,
        qOverload<int>(&C::setCurrentRow), &C::selectAll)
    ADD(TavikColorButton, &C::setCurrentColor, &C::updateStyleSheet, &C::click, REM_SIZES)
    ADD(TavikColorPicker, drawn<C, Number>(&C::setCurrentHue), &C::setCurrentColor, &C::updateColors,
        &C::updateSelectedColor)
    ADD(TavikColorSilder, &C::setColors, &C::setFirstColor, &C::setLastColor, drawn<C>(&C::gradient),
        drawn<C>(&C::firstColor), drawn<C>(&C::lastColor), drawn<C, Pixels, Pixels>(&C::setRange),
        &C::setValue, &C::setOrientation)
    ADD(TavikColorWell, &C::addColor, &C::initColors, &C::initRects)
    ADD(TavikGradientBar, &C::setStartValue, &C::setEndValue, &C::setStartColor, &C::setEndColor,
        &C::setSelectedSide, drawn<C, double>(&C::colorAt), &C::refreashGradient)
    ADD(TavikColorPopup, &C::setCurrentColor, &C::showColorPopup)
    return table;
}

Deed deedOf(const Setter &setter, Random &random)
{
    const Call call = setter.draw(random);
    const auto act = [=](Stage &, QWidget *control) {
        const Busy busy(control);
        call(control);
    };
    return deedTo(Stage::slotOf(setter.className), act, QLatin1String("::") + setter.name);
}

Deed set(Random &random)
{
    return deedOf(random.pick(setterTable()), random);
}

} // namespace

Deed Actions::set(Random &random, const char *className)
{
    std::vector<Setter> own;
    std::copy_if(setterTable().begin(), setterTable().end(), std::back_inserter(own),
                 [&](const Setter &setter) { return qstrcmp(setter.className, className) == 0; });
    return deedOf(random.pick(own), random);
}

std::vector<Action> Actions::setters()
{
    return {{"set", 60, ::set}};
}
