#include "samples.h"

#include "guidesamples.h"
#include "look.h"
#include "ownpictures.h"
#include "pages/colourspecimens.h"
#include "shared/comboplace.h"

#include <QCoreApplication>
#include <QVBoxLayout>

#include <Tavik/Tavik>
#include <Tavik/TavikColorButton>
#include <Tavik/TavikColorPicker>
#include <Tavik/TavikColorSilder>
#include <Tavik/TavikColorWell>
#include <Tavik/TavikGradientBar>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Samples", text);
}

QWidget *labels()
{
    return Look::row(
        {new TavikLabel(tr(QT_TRANSLATE_NOOP("Samples", "Opacity"))),
         new TavikLabel(tr(QT_TRANSLATE_NOOP("Samples", "0 is fully transparent")), TavikLabel::Assist)});
}

TavikButton *sized(TavikButton *button)
{
    button->setRemSize(4.667, 2.333);
    return button;
}

QWidget *buttons()
{
    const QIcon icon(QStringLiteral(":/Color/images/refresh.svg"));
    QWidget *row = Look::row({sized(new TavikButton(QStringLiteral("Solid"))),
                              sized(new TavikButton(QStringLiteral("Outline"), TavikButton::Outline)),
                              sized(new TavikButton(QStringLiteral("Toggle"), TavikButton::Toggle)),
                              sized(new TavikButton(QStringLiteral("Link"), TavikButton::Link)),
                              sized(new TavikButton(icon, QSizeF(1.5, 1.5), TavikButton::Flat))});
    row->layout()->setSpacing(LenConverter::iniRemToPx(4));
    return row;
}

QWidget *buttonGroup()
{
    auto *group = new TavikButtonGroup(Horizontal, 1.167, QSizeF(6, 2.333));
    group->addTextButton(tr(QT_TRANSLATE_NOOP("Samples", "Left")));
    group->addTextButton(tr(QT_TRANSLATE_NOOP("Samples", "Centre")));
    group->addTextButton(tr(QT_TRANSLATE_NOOP("Samples", "Right")));
    group->setCheckedId(0);
    return group;
}

/// A button of either kind, checked and not.
template <class Button>
QWidget *checkedAndNot(const char *checkedText, const char *text)
{
    auto *checked = new Button(tr(checkedText));
    checked->setChecked(true);
    return Look::row({checked, new Button(tr(text))});
}

QWidget *checkBoxes()
{
    return checkedAndNot<TavikCheckBox>(QT_TRANSLATE_NOOP("Samples", "Show the grid"),
                                        QT_TRANSLATE_NOOP("Samples", "Snap to it"));
}

QWidget *radioButtons()
{
    return checkedAndNot<TavikRadioButton>(QT_TRANSLATE_NOOP("Samples", "Paper"),
                                           QT_TRANSLATE_NOOP("Samples", "Screen"));
}

QWidget *lineEdit()
{
    auto *edit = new TavikLineEdit;
    edit->setText(tr(QT_TRANSLATE_NOOP("Samples", "Evening sky")));
    edit->setRemSize(12, 2.333);
    return edit;
}

template <class Spinbox>
QWidget *spinBox()
{
    auto *box = new Spinbox;
    box->setValue(12);
    box->setRemSize(8, 2.333);
    return box;
}

QWidget *comboBox()
{
    auto *combo = new TavikComboBox;
    combo->addItem(tr(QT_TRANSLATE_NOOP("Samples", "Millimetres")));
    return new ComboPlace(combo, 14, 2.333);
}

QWidget *fontFamilyComboBox()
{
    auto *combo = new TavikFontFamilyComboBox;
    combo->setCurrentText(combo->font().family());
    return new ComboPlace(combo, 14, 2.333);
}

QWidget *slider()
{
    auto *slider = new TavikSlider(14.0, 2);
    slider->setValue(40);
    return slider;
}

QWidget *dial()
{
    auto *dial = new TavikDial;
    dial->setFixedSize(LenConverter::iniRemToPxSz(60, 60));
    dial->setValue(30);
    return dial;
}

QWidget *rule()
{
    return new TavikSeperateLine(20.0);
}

QWidget *container()
{
    auto *box = new TavikContainer(Horizontal, QStringLiteral("#fdfdfd"), QStringLiteral("1"),
                                   QStringLiteral("#d3d3d3"));
    box->addWidget(new TavikLabel(tr(QT_TRANSLATE_NOOP("Samples", "Two changes"))));
    box->addWidget(sized(new TavikButton(tr(QT_TRANSLATE_NOOP("Samples", "Save")))));
    return box;
}

QWidget *expandable()
{
    auto *panel = new TavikExpandable(tr(QT_TRANSLATE_NOOP("Samples", "Shadow")), 5);
    panel->setRemWidth(22);
    panel->addWidget(checkBoxes());
    return panel;
}

QWidget *layers()
{
    auto *list = new QWidget;
    auto *layout = new QVBoxLayout(list);
    for (int i = 1; i <= 8; ++i)
        layout->addWidget(new TavikCheckBox(tr(QT_TRANSLATE_NOOP("Samples", "Layer %1")).arg(i)));
    return list;
}

QWidget *scrollArea()
{
    auto *area = new TavikScrollArea;
    area->setRemSz(18, 100);
    area->setWidgetResizable(true);
    area->setWidget(layers());
    area->widget()->setAutoFillBackground(false);
    return area;
}

QWidget *imageList()
{
    auto *list = new TavikImageList;
    list->setIconRemSz(6, 4.5);
    const QStringList pictures = OwnPictures::paths();
    for (const QString &picture : pictures.mid(0, 3))
        list->addImage(picture);
    list->setRemWidth(22);
    list->setFixedHeight(LenConverter::remToPx(5.167));
    return list;
}

QWidget *colorButtons()
{
    QWidget *row = Look::row({});
    for (const QColor &color :
         {QColor(0x08, 0xa2, 0x74), QColor(0x10, 0x8e, 0xe9), QColor(0xf3, 0x98, 0x0f, 0x80)}) {
        auto *button = new TavikColorButton(color, row);
        button->setRemSize(5, 2.333);
        row->layout()->addWidget(button);
    }
    return row;
}

/// A control at the size that it comes with.
template <class Control>
QWidget *small()
{
    return Look::row({new Control});
}

} // namespace

const QVector<Sample> &sampleTable()
{
    static const QVector<Sample> table{
        {QStringLiteral("TavikLabel"), labels},
        {QStringLiteral("TavikButton"), buttons},
        {QStringLiteral("TavikButtonGroup"), buttonGroup},
        {QStringLiteral("TavikCheckBox"), checkBoxes},
        {QStringLiteral("TavikRadioButton"), radioButtons},
        {QStringLiteral("TavikLineEdit"), lineEdit},
        {QStringLiteral("TavikSpinbox"), spinBox<TavikSpinbox>},
        {QStringLiteral("TavikDoubleSpinbox"), spinBox<TavikDoubleSpinbox>},
        {QStringLiteral("TavikComboBox"), comboBox},
        {QStringLiteral("TavikFontFamilyComboBox"), fontFamilyComboBox},
        {QStringLiteral("TavikSlider"), slider},
        {QStringLiteral("TavikDial"), dial},
        {QStringLiteral("TavikSeperateLine"), rule},
        {QStringLiteral("TavikContainer"), container},
        {QStringLiteral("TavikExpandable"), expandable},
        {QStringLiteral("TavikScrollArea"), scrollArea},
        {QStringLiteral("TavikImageList"), imageList},
        {QStringLiteral("TavikColorButton"), colorButtons},
        {QStringLiteral("TavikColorPopup"), ColourSpecimens::popup},
        {QStringLiteral("TavikColorPicker"), small<TavikColorPicker>},
        {QStringLiteral("TavikColorSilder"), small<TavikColorSilder>},
        {QStringLiteral("TavikColorWell"), small<TavikColorWell>},
        {QStringLiteral("TavikGradientBar"), small<TavikGradientBar>},
        {QStringLiteral("guide-start"), GuideSamples::start},
        {QStringLiteral("guide-lengths"), GuideSamples::lengths},
        {QStringLiteral("guide-styling"), GuideSamples::styling},
        {QStringLiteral("guide-wiring"), GuideSamples::wiring},
        {QStringLiteral("guide-right-to-left"), GuideSamples::rightToLeft},
    };
    return table;
}
