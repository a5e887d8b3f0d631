#include "samples.h"

#include "guidesamples.h"
#include "guidewindow.h"
#include "specimens/colourspecimens.h"

namespace {

template <void (GuideWindow::*make)()>
QWidget *windowWith()
{
    auto *window = new GuideWindow;
    (window->*make)();
    return window;
}

} // namespace

const QVector<Sample> &sampleTable()
{
    static const QVector<Sample> table{
        {"TavikLabel", windowWith<&GuideWindow::labels>},
        {"TavikButton", windowWith<&GuideWindow::buttons>},
        {"TavikButtonGroup", windowWith<&GuideWindow::buttonGroup>},
        {"TavikCheckBox", windowWith<&GuideWindow::checkBoxes>},
        {"TavikRadioButton", windowWith<&GuideWindow::radioButtons>},
        {"TavikLineEdit", windowWith<&GuideWindow::lineEdit>},
        {"TavikSpinbox", windowWith<&GuideWindow::spinBox>},
        {"TavikDoubleSpinbox", windowWith<&GuideWindow::doubleSpinBox>},
        {"TavikComboBox", windowWith<&GuideWindow::comboBox>},
        {"TavikFontFamilyComboBox", windowWith<&GuideWindow::fontFamilyComboBox>},
        {"TavikSlider", windowWith<&GuideWindow::slider>},
        {"TavikDial", windowWith<&GuideWindow::dial>},
        {"TavikSeperateLine", windowWith<&GuideWindow::rule>},
        {"TavikContainer", windowWith<&GuideWindow::container>},
        {"TavikExpandable", windowWith<&GuideWindow::expandable>},
        {"TavikScrollArea", windowWith<&GuideWindow::scrollArea>},
        {"TavikImageList", windowWith<&GuideWindow::imageList>},
        {"TavikColorButton", windowWith<&GuideWindow::colorButtons>},
        {"TavikColorPopup", ColourSpecimens::popup},
        {"TavikColorPicker", windowWith<&GuideWindow::colorPicker>},
        {"TavikColorSilder", windowWith<&GuideWindow::colorSlider>},
        {"TavikColorWell", windowWith<&GuideWindow::colorWell>},
        {"TavikGradientBar", windowWith<&GuideWindow::gradientBar>},
        {"guide-start", GuideSamples::start},
        {"guide-lengths", GuideSamples::lengths},
        {"guide-styling", windowWith<&GuideWindow::styling>},
        {"guide-wiring", GuideSamples::wiring},
        {"guide-right-to-left", GuideSamples::rightToLeft},
    };
    return table;
}
