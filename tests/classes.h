#ifndef TAVIK_TESTS_CLASSES_H
#define TAVIK_TESTS_CLASSES_H

#include <Tavik/Tavik>

#include <vector>

namespace Support {

/// A class that shows something: how it is made from a parent alone, and what its meta-object has.
struct ControlClass
{
    const char *name;
    QWidget *(*make)(QWidget *parent);
    const QMetaObject *base;
    int methods; // signals and slots
    int properties;
};

template <class Class, class Base>
ControlClass controlClass(const char *name, int methods = 0, int properties = 0)
{
    const auto make = [](QWidget *parent) -> QWidget * { return new Class(parent); };
    return {name, make, &Base::staticMetaObject, methods, properties};
}

/// All of them.
inline const std::vector<ControlClass> &controlClasses()
{
    static const std::vector<ControlClass> classes = {
        controlClass<TavikLabel, QLabel>("TavikLabel"),
        controlClass<TavikButton, QPushButton>("TavikButton"),
        controlClass<TavikButtonGroup, QWidget>("TavikButtonGroup", 2),
        controlClass<TavikCheckBox, QCheckBox>("TavikCheckBox"),
        controlClass<TavikRadioButton, QRadioButton>("TavikRadioButton"),
        controlClass<TavikLineEdit, QLineEdit>("TavikLineEdit"),
        controlClass<TavikSpinbox, QSpinBox>("TavikSpinbox"),
        controlClass<TavikDoubleSpinbox, QDoubleSpinBox>("TavikDoubleSpinbox"),
        controlClass<TavikComboBox, QComboBox>("TavikComboBox"),
        controlClass<TavikFontFamilyComboBox, TavikComboBox>("TavikFontFamilyComboBox"),
        controlClass<TavikSlider, QSlider>("TavikSlider"),
        controlClass<TavikDial, QDial>("TavikDial"),
        controlClass<TavikSeperateLine, QLabel>("TavikSeperateLine"),
        controlClass<TavikContainer, QWidget>("TavikContainer"),
        controlClass<TavikExpandable, QWidget>("TavikExpandable", 3, 1),
        controlClass<TavikScrollArea, QScrollArea>("TavikScrollArea"),
        controlClass<TavikImageList, QListWidget>("TavikImageList"),
        controlClass<TavikColorButton, QPushButton>("TavikColorButton", 3),
        controlClass<TavikColorPicker, QWidget>("TavikColorPicker", 1),
        controlClass<TavikColorSilder, QSlider>("TavikColorSilder"),
        controlClass<TavikColorWell, QWidget>("TavikColorWell", 2),
        controlClass<TavikGradientBar, QWidget>("TavikGradientBar", 5),
        controlClass<TavikColorPopup, QWidget>("TavikColorPopup", 19),
    };
    return classes;
}

} // namespace Support

#endif
