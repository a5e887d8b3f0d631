#include "actions.h"
#include "busy.h"
#include "stage.h"
#include "wild.h"

#include <Tavik/Tavik>

#include <tuple>

namespace {

/// A call with the arguments that were drawn for it.
struct Call
{
    QString arguments;
    std::function<void(QWidget *)> run;
};

/// A public function of a class, its arguments drawn by their types.
struct Setter
{
    const char *className;
    const char *name;
    std::function<Call(Random &)> draw;
};

template <class... Arguments, class Function>
std::function<Call(Random &)> calling(Function function)
{
    return [function](Random &random) {
        // Braces, because only there the order of drawing is fixed.
        const std::tuple<Wild::Drawn<Arguments>...> drawn{Wild::draw<Arguments>(random)...};
        const auto told = [](const auto &...argument) {
            return QStringList{argument.text...}.join(QLatin1String(", "));
        };
        return Call{std::apply(told, drawn), [=](QWidget *widget) {
                        std::apply([&](const auto &...argument) { function(widget, argument.value...); },
                                   drawn);
                    }};
    };
}

template <class Class, class Result, class Owner, class... Arguments>
Setter setter(const char *name, Result (Owner::*member)(Arguments...))
{
    return {Class::staticMetaObject.className(), name,
            calling<std::decay_t<Arguments>...>([member](QWidget *widget, const auto &...arguments) {
                static_cast<void>((static_cast<Class *>(widget)->*member)(arguments...));
            })};
}

template <class Class, class Result, class Owner, class... Arguments>
Setter setter(const char *name, Result (Owner::*member)(Arguments...) const)
{
    return {Class::staticMetaObject.className(), name,
            calling<std::decay_t<Arguments>...>([member](QWidget *widget, const auto &...arguments) {
                static_cast<void>((static_cast<const Class *>(widget)->*member)(arguments...));
            })};
}

/// A call with a value of the kind that `draw` gives, where another one of its type would test too much or too
/// little: pixels instead of any whole number, or any number instead of a length. See Wild::length().
template <class Class, class Owner, class Value>
Setter setterOf(const char *name, void (Owner::*member)(Value), Value (*draw)(Random &))
{
    return {Class::staticMetaObject.className(), name, [=](Random &random) {
                const Value value = draw(random);
                return Call{QString::number(value),
                            [=](QWidget *widget) { (static_cast<Class *>(widget)->*member)(value); }};
            }};
}

/// A range of a slider that stays small: over the whole range of int the toolkit divides by 0.
template <class Class>
Setter sliderRange()
{
    return {Class::staticMetaObject.className(), "setRange", [](Random &random) {
                const auto range = Wild::draw<QSize>(random);
                return Call{range.text, [=](QWidget *widget) {
                                static_cast<Class *>(widget)->setRange(range.value.width(),
                                                                       range.value.height());
                            }};
            }};
}

#define CALL(Class, member) setter<Class>(#member, &Class::member)
#define CALL_AS(Class, member, ...) setter<Class>(#member, qOverload<__VA_ARGS__>(&Class::member))

#define REM_SIZES(Class)                                                                                   \
    CALL(Class, setRemWidth), CALL(Class, setRemHeight), CALL_AS(Class, setRemSize, double, double),       \
        CALL_AS(Class, setRemSize, const QSizeF &)

const std::vector<Setter> &setterTable()
{
    static const std::vector<Setter> table = {
        CALL(TavikLabel, initStyleProperties),
        CALL(TavikLabel, updateStyleSheet),
        CALL(TavikLabel, setColor),
        CALL(TavikLabel, setFontRemSz),
        CALL(TavikLabel, setRemWidth),
        CALL(TavikLabel, setRemHeight),
        CALL(TavikLabel, setRemSize),
        CALL(TavikLabel, setText),

        CALL(TavikButton, initStyleProperties),
        CALL(TavikButton, updateStyleSheet),
        CALL(TavikButton, setFontRemSz),
        setterOf<TavikButton>("setFontPxSz", &TavikButton::setFontPxSz, Wild::pixels),
        CALL(TavikButton, setIsPaintOverrided),
        CALL(TavikButton, setBgColor),
        CALL(TavikButton, setHoverBgColor),
        CALL(TavikButton, setPressBgColor),
        CALL(TavikButton, setCheckedBgColor),
        CALL(TavikButton, setColor),
        CALL(TavikButton, setHoverColor),
        CALL(TavikButton, setCheckedColor),
        CALL(TavikButton, setBorderColor),
        CALL(TavikButton, setHoverBorderColor),
        CALL(TavikButton, setPressBorderColor),
        CALL(TavikButton, setCheckedBorderColor),
        CALL(TavikButton, setBorderWidth),
        CALL(TavikButton, setBorderRadius),
        CALL(TavikButton, setMargin),
        CALL(TavikButton, setIcon),
        CALL(TavikButton, setText),
        CALL(TavikButton, setCheckable),
        CALL(TavikButton, setChecked),
        CALL(TavikButton, click),
        CALL(TavikButton, setRemWidth),
        CALL(TavikButton, setRemHeight),

        CALL(TavikButtonGroup, addTextButton),
        CALL_AS(TavikButtonGroup, addIconButton, const QString &),
        CALL_AS(TavikButtonGroup, addIconButton, const QIcon &),
        CALL(TavikButtonGroup, addRadioButton),
        CALL(TavikButtonGroup, setRemSpacing),
        setterOf<TavikButtonGroup>("setPxSpacing", &TavikButtonGroup::setPxSpacing, Wild::pixels),
        CALL(TavikButtonGroup, setIsUncheckable),
        CALL(TavikButtonGroup, setIconRemSz),
        CALL(TavikButtonGroup, setIconPxSz),
        CALL(TavikButtonGroup, setAlignment),
        CALL(TavikButtonGroup, setCheckedId),

        CALL(TavikCheckBox, setFontRemSz),
        CALL(TavikCheckBox, setIndicatorSz),
        CALL(TavikCheckBox, setFontColor),
        CALL(TavikCheckBox, updateStyleSheet),
        CALL(TavikCheckBox, setCheckState),
        CALL(TavikCheckBox, setTristate),
        CALL(TavikCheckBox, setText),

        CALL(TavikRadioButton, setFontRemSz),
        CALL(TavikRadioButton, setIndicatorSz),
        CALL(TavikRadioButton, updateStyleSheet),
        CALL(TavikRadioButton, setChecked),

        CALL_AS(TavikLineEdit, setContent, const QString &),
        CALL_AS(TavikLineEdit, setContent, int),
        setterOf<TavikLineEdit>("setContent", qOverload<double>(&TavikLineEdit::setContent), Wild::number),
        CALL(TavikLineEdit, setIntRange),
        CALL(TavikLineEdit, setFontRemSz),
        setterOf<TavikLineEdit>("setFontPxSz", &TavikLineEdit::setFontPxSz, Wild::pixels),
        CALL(TavikLineEdit, updateStyleSheet),
        CALL(TavikLineEdit, initValidator),
        CALL(TavikLineEdit, setReadOnly),
        CALL(TavikLineEdit, setMaxLength),
        CALL(TavikLineEdit, setText),
        CALL(TavikLineEdit, clear),
        CALL(TavikLineEdit, selectAll),
        REM_SIZES(TavikLineEdit),

        CALL(TavikSpinbox, setFontRemSz),
        CALL(TavikSpinbox, updateStyleSheet),
        CALL(TavikSpinbox, updateStyleSheetHideStepBut),
        CALL(TavikSpinbox, setRange),
        CALL(TavikSpinbox, setValue),
        CALL(TavikSpinbox, setSingleStep),
        CALL(TavikSpinbox, setPrefix),
        CALL(TavikSpinbox, stepUp),
        REM_SIZES(TavikSpinbox),

        CALL(TavikDoubleSpinbox, setFontRemSz),
        CALL(TavikDoubleSpinbox, updateStyleSheet),
        CALL(TavikDoubleSpinbox, setRange),
        setterOf<TavikDoubleSpinbox>("setValue", &TavikDoubleSpinbox::setValue, Wild::number),
        setterOf<TavikDoubleSpinbox>("setSingleStep", &TavikDoubleSpinbox::setSingleStep, Wild::number),
        CALL(TavikDoubleSpinbox, stepDown),
        REM_SIZES(TavikDoubleSpinbox),

        CALL(TavikComboBox, setFontRemSz),
        CALL(TavikComboBox, updateStyleSheet),
        CALL(TavikComboBox, addItems),
        CALL(TavikComboBox, clear),
        CALL(TavikComboBox, setCurrentIndex),
        CALL(TavikComboBox, setEditable),
        CALL(TavikComboBox, showPopup),
        CALL(TavikComboBox, hidePopup),
        REM_SIZES(TavikComboBox),

        CALL(TavikFontFamilyComboBox, initFontFamilies),
        CALL(TavikFontFamilyComboBox, setFontRemSz),
        CALL(TavikFontFamilyComboBox, clear),
        CALL(TavikFontFamilyComboBox, setCurrentIndex),
        CALL(TavikFontFamilyComboBox, setEditable),
        CALL(TavikFontFamilyComboBox, setEditText),
        CALL(TavikFontFamilyComboBox, showPopup),
        CALL(TavikFontFamilyComboBox, hidePopup),

        CALL(TavikSlider, updateStyleSheet),
        sliderRange<TavikSlider>(),
        CALL(TavikSlider, setValue),
        CALL(TavikSlider, setOrientation),
        CALL(TavikSlider, setInvertedAppearance),

        sliderRange<TavikDial>(),
        CALL(TavikDial, setValue),
        // Not setWrapping: the toolkit's dial then divides by 0 where the range is a single value.
        CALL(TavikDial, setNotchesVisible),

        CALL(TavikSeperateLine, clear),
        CALL(TavikSeperateLine, setText),

        CALL(TavikContainer, setSpacing),
        setterOf<TavikContainer>("addSpacing", &TavikContainer::addSpacing, Wild::pixels),
        CALL(TavikContainer, addStretch),
        setterOf<TavikContainer>("setContentMargin", &TavikContainer::setContentMargin, Wild::pixels),
        CALL(TavikContainer, removeMargins),
        CALL_AS(TavikContainer, setAlignment, Qt::Alignment),
        REM_SIZES(TavikContainer),

        CALL(TavikExpandable, setTitle),
        CALL(TavikExpandable, setRemWidth),
        CALL(TavikExpandable, setSpacing),
        CALL(TavikExpandable, setRemExpandHeight),
        CALL(TavikExpandable, updateExpandedHeight),
        CALL(TavikExpandable, initAnimationStates),
        CALL(TavikExpandable, expand),
        CALL(TavikExpandable, unexpand),
        CALL(TavikExpandable, onclickedExpanedRequest),

        CALL(TavikScrollArea, setRemWidth),
        CALL(TavikScrollArea, setRemHeight),
        CALL(TavikScrollArea, setRemSz),
        CALL(TavikScrollArea, setWidgetResizable),

        CALL(TavikImageList, setRemWidth),
        CALL(TavikImageList, setIconRemSz),
        CALL(TavikImageList, addImage),
        CALL(TavikImageList, clear),
        CALL_AS(TavikImageList, setCurrentRow, int),
        CALL(TavikImageList, selectAll),

        CALL(TavikColorButton, setCurrentColor),
        CALL(TavikColorButton, updateStyleSheet),
        CALL(TavikColorButton, click),
        REM_SIZES(TavikColorButton),

        setterOf<TavikColorPicker>("setCurrentHue", &TavikColorPicker::setCurrentHue, Wild::number),
        CALL(TavikColorPicker, setCurrentColor),
        CALL(TavikColorPicker, updateColors),
        CALL(TavikColorPicker, updateSelectedColor),

        CALL(TavikColorSilder, setColors),
        CALL(TavikColorSilder, setFirstColor),
        CALL(TavikColorSilder, setLastColor),
        CALL(TavikColorSilder, gradient),
        CALL(TavikColorSilder, firstColor),
        CALL(TavikColorSilder, lastColor),
        sliderRange<TavikColorSilder>(),
        CALL(TavikColorSilder, setValue),
        CALL(TavikColorSilder, setOrientation),

        CALL(TavikColorWell, addColor),
        CALL(TavikColorWell, initColors),
        CALL(TavikColorWell, initRects),

        CALL(TavikGradientBar, setStartValue),
        CALL(TavikGradientBar, setEndValue),
        CALL(TavikGradientBar, setStartColor),
        CALL(TavikGradientBar, setEndColor),
        CALL(TavikGradientBar, setSelectedSide),
        CALL(TavikGradientBar, colorAt),
        CALL(TavikGradientBar, refreashGradient),

        CALL(TavikColorPopup, setCurrentColor),
        CALL(TavikColorPopup, showColorPopup),
    };
    return table;
}

Deed deedOf(const Setter &setter, Random &random)
{
    const Call call = setter.draw(random);
    const QString text =
        QStringLiteral("%1::%2(%3)")
            .arg(QLatin1String(setter.className), QLatin1String(setter.name), call.arguments);
    return {text, [=](Stage &stage) {
                QWidget *control = stage.at(Stage::slotOf(setter.className));
                const Busy busy(control);
                call.run(control);
            }};
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

const std::vector<Action> &Actions::setters()
{
    static const std::vector<Action> actions = {{"set", 60, ::set}};
    return actions;
}
