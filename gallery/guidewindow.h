#ifndef GALLERY_GUIDEWINDOW_H
#define GALLERY_GUIDEWINDOW_H

#include <QWidget>

/// The window that the guide's code stands in: each function shows what one piece of it makes.
class GuideWindow : public QWidget
{
    Q_OBJECT

public:
    void labels();
    void buttons();
    void buttonGroup();
    void checkBoxes();
    void radioButtons();
    void lineEdit();
    void spinBox();
    void doubleSpinBox();
    void comboBox();
    void fontFamilyComboBox();
    void slider();
    void dial();
    void rule();
    void container();
    void expandable();
    void scrollArea();
    void imageList();
    void colorButtons();
    void colorPicker();
    void colorSlider();
    void colorWell();
    void gradientBar();

    /// A button as made, one changed and not yet restyled, and one restyled.
    void styling();
};

#endif
