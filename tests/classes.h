#ifndef TAVIK_TESTS_CLASSES_H
#define TAVIK_TESTS_CLASSES_H

#include <Tavik/Tavik>

#include <vector>

namespace Support {

/// A class that shows something, and how it is made from a parent alone.
struct ControlClass
{
    const char *name;
    QWidget *(*make)(QWidget *parent);
};

template <class Class>
ControlClass controlClass(const char *name)
{
    return {name, [](QWidget *parent) -> QWidget * { return new Class(parent); }};
}

/// All of them.
inline const std::vector<ControlClass> &controlClasses()
{
    static const std::vector<ControlClass> classes = {
        controlClass<TavikLabel>("TavikLabel"),
        controlClass<TavikButton>("TavikButton"),
        controlClass<TavikButtonGroup>("TavikButtonGroup"),
        controlClass<TavikCheckBox>("TavikCheckBox"),
        controlClass<TavikRadioButton>("TavikRadioButton"),
        controlClass<TavikLineEdit>("TavikLineEdit"),
        controlClass<TavikSpinbox>("TavikSpinbox"),
        controlClass<TavikDoubleSpinbox>("TavikDoubleSpinbox"),
        controlClass<TavikComboBox>("TavikComboBox"),
        controlClass<TavikFontFamilyComboBox>("TavikFontFamilyComboBox"),
        controlClass<TavikSlider>("TavikSlider"),
        controlClass<TavikDial>("TavikDial"),
        controlClass<TavikSeperateLine>("TavikSeperateLine"),
        controlClass<TavikContainer>("TavikContainer"),
        controlClass<TavikExpandable>("TavikExpandable"),
        controlClass<TavikScrollArea>("TavikScrollArea"),
        controlClass<TavikImageList>("TavikImageList"),
        controlClass<TavikColorButton>("TavikColorButton"),
        controlClass<TavikColorPicker>("TavikColorPicker"),
        controlClass<TavikColorSilder>("TavikColorSilder"),
        controlClass<TavikColorWell>("TavikColorWell"),
        controlClass<TavikGradientBar>("TavikGradientBar"),
        controlClass<TavikColorPopup>("TavikColorPopup"),
    };
    return classes;
}

} // namespace Support

#endif
