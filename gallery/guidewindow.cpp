#include "guidewindow.h"

#include "common/comboplace.h"
#include "look.h"

#include <QHBoxLayout>

#include <Tavik/Tavik>

namespace {

/// Shows a widget as a window's only content.
void fill(QWidget *window, QWidget *widget)
{
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    // Its size hint is the right one once it is polished.
    widget->ensurePolished();
    layout->addWidget(widget, 0, Qt::AlignLeft | Qt::AlignTop);
}

} // namespace

void GuideWindow::labels()
{
    //! [TavikLabel]
    auto *caption = new TavikLabel("Opacity", this);
    auto *hint = new TavikLabel("0 is fully transparent", TavikLabel::Assist, this);
    //! [TavikLabel]
    Look::row({caption, hint}, this);
}

void GuideWindow::buttons()
{
    //! [TavikButton]
    auto *solid = new TavikButton("Solid", this);
    auto *outline = new TavikButton("Outline", TavikButton::Outline, this);
    auto *toggle = new TavikButton("Toggle", TavikButton::Toggle, this); // stays down when clicked
    auto *link = new TavikButton("Link", TavikButton::Link, this);
    const QIcon refresh(":/Color/images/refresh.svg");
    auto *flat = new TavikButton(refresh, QSizeF(1.5, 1.5), TavikButton::Flat, this); // rem
    for (TavikButton *button : {solid, outline, toggle, link, flat})
        button->setRemSize(4.667, 2.333);
    connect(solid, &QPushButton::clicked, this, &QWidget::close);
    connect(toggle, &QPushButton::toggled, flat, &QWidget::setEnabled);
    //! [TavikButton]
    Look::row({solid, outline, toggle, link, flat}, this);
    layout()->setSpacing(LenConverter::iniRemToPx(4));
}

void GuideWindow::buttonGroup()
{
    //! [TavikButtonGroup]
    // direction, font size, size of a button, mode, spacing; lengths are in rem
    auto *align =
        new TavikButtonGroup(Horizontal, 1.167, QSizeF(6, 2.333), TavikButtonGroup::Exclusive, 0, this);
    align->addTextButton("Left");
    align->addTextButton("Centre");
    align->addTextButton("Right");
    align->setCheckedId(0);
    connect(align, &TavikButtonGroup::buttonClicked, this,
            [=](int id) { setWindowTitle(QString::number(id)); });
    //! [TavikButtonGroup]
    fill(this, align);
}

void GuideWindow::checkBoxes()
{
    //! [TavikCheckBox]
    auto *grid = new TavikCheckBox("Show the grid", this);
    auto *snap = new TavikCheckBox("Snap to it", this);
    grid->setChecked(true);
    connect(grid, &QCheckBox::toggled, snap, &QWidget::setEnabled);
    //! [TavikCheckBox]
    Look::row({grid, snap}, this);
}

void GuideWindow::radioButtons()
{
    //! [TavikRadioButton]
    auto *paper = new TavikRadioButton("Paper", this);
    auto *screen = new TavikRadioButton("Screen", this);
    paper->setChecked(true);
    //! [TavikRadioButton]
    Look::row({paper, screen}, this);
}

void GuideWindow::lineEdit()
{
    //! [TavikLineEdit]
    auto *name = new TavikLineEdit("Name", this); // the text is the placeholder
    name->setText("Evening sky");
    name->setRemSize(12, 2.333);
    //! [TavikLineEdit]
    fill(this, name);
}

void GuideWindow::spinBox()
{
    //! [TavikSpinbox]
    auto *copies = new TavikSpinbox(1, 99, 1, this);
    copies->setValue(12);
    copies->setRemSize(8, 2.333);
    //! [TavikSpinbox]
    fill(this, copies);
}

void GuideWindow::doubleSpinBox()
{
    //! [TavikDoubleSpinbox]
    auto *width = new TavikDoubleSpinbox(0.25, 40.0, 0.25, this);
    width->setValue(12);
    width->setRemSize(8, 2.333);
    //! [TavikDoubleSpinbox]
    fill(this, width);
}

void GuideWindow::comboBox()
{
    //! [TavikComboBox]
    auto *unit = new TavikComboBox(this);
    unit->addItems({"Millimetres", "Pixels"});
    //! [TavikComboBox]
    fill(this, new ComboPlace(unit, 14, 2.333));
}

void GuideWindow::fontFamilyComboBox()
{
    //! [TavikFontFamilyComboBox]
    auto *family = new TavikFontFamilyComboBox(this);
    family->setCurrentText(font().family());
    connect(family, &QComboBox::currentTextChanged, this,
            [=](const QString &name) { setFont(QFont(name)); });
    //! [TavikFontFamilyComboBox]
    fill(this, new ComboPlace(family, 14, 2.333));
}

void GuideWindow::slider()
{
    //! [TavikSlider]
    auto *opacity = new TavikSlider(14.0, 2, this); // 14 by 2 rem
    opacity->setValue(40);
    connect(opacity, &QSlider::valueChanged, this, [=](int percent) { setWindowOpacity(percent / 100.0); });
    //! [TavikSlider]
    fill(this, opacity);
}

void GuideWindow::dial()
{
    //! [TavikDial]
    auto *volume = new TavikDial(this);
    volume->setFixedSize(LenConverter::iniRemToPxSz(60, 60));
    volume->setValue(30);
    //! [TavikDial]
    fill(this, volume);
}

void GuideWindow::rule()
{
    //! [TavikSeperateLine]
    auto *rule = new TavikSeperateLine(20.0, this); // 20 rem; an int means pixels
    //! [TavikSeperateLine]
    fill(this, rule);
}

void GuideWindow::container()
{
    //! [TavikContainer]
    // direction, background, border width, border colour, padding, margin
    auto *bar = new TavikContainer(Horizontal, "#fdfdfd", "1", "#d3d3d3", "0", "0", this);
    bar->setContentMargin(11); // pixels
    auto *save = new TavikButton("Save", bar);
    save->setRemSize(4.667, 2.333);
    bar->addWidget(new TavikLabel("Two changes", bar));
    bar->addWidget(save);
    //! [TavikContainer]
    fill(this, bar);
}

void GuideWindow::expandable()
{
    //! [TavikExpandable]
    auto *shadow = new TavikExpandable("Shadow", 5.0, true, this); // open
    shadow->setRemWidth(22);
    auto *grid = new TavikCheckBox("Show the grid", shadow);
    grid->setChecked(true);
    auto *options = new QHBoxLayout;
    options->setSpacing(LenConverter::remToPx(1));
    options->addWidget(grid);
    options->addWidget(new TavikCheckBox("Snap to it", shadow));
    options->addStretch();
    shadow->addLayout(options);
    connect(shadow, &TavikExpandable::animationFinished, this, [=] { setWindowTitle("At rest"); });
    //! [TavikExpandable]
    fill(this, shadow);
}

void GuideWindow::scrollArea()
{
    //! [TavikScrollArea]
    auto *layers = new QWidget;
    auto *column = new QVBoxLayout(layers);
    for (int i = 1; i <= 8; ++i)
        column->addWidget(new TavikCheckBox(QString("Layer %1").arg(i), layers));
    // border width, border colour, background
    auto *area = new TavikScrollArea("1", "#d3d3d3", "#ffffff", this);
    area->setRemSz(18, 100); // 18 rem wide, 100 pixels high
    area->setWidgetResizable(true);
    area->setWidget(layers);
    layers->setAutoFillBackground(false); // or the toolkit's grey covers the background
    //! [TavikScrollArea]
    fill(this, area);
}

void GuideWindow::imageList()
{
    //! [TavikImageList]
    auto *photographs = new TavikImageList(this);
    photographs->setIconRemSz(6, 4.5); // before the first image
    photographs->setRemWidth(22);
    photographs->setFixedHeight(LenConverter::remToPx(5.167));
    //! [TavikImageList]
    for (const QString name : {"dawn", "desert", "forest"})
        photographs->addImage(":/gallery/pictures/" + name + ".svg");
    fill(this, photographs);
}

void GuideWindow::colorButtons()
{
    //! [TavikColorButton]
    auto *fill = new TavikColorButton(QColor("#08a274"), this);
    auto *line = new TavikColorButton(QColor("#108ee9"), this);
    auto *glow = new TavikColorButton(QColor("#80f3980f"), this); // alpha first
    auto *wiring = new TavikColorWiring(this);
    for (TavikColorButton *button : {fill, line, glow}) {
        button->setRemSize(5, 2.333);
        wiring->serve(button);
    }
    connect(fill, &TavikColorButton::colorChanged, this,
            [=](const QColor &color) { setPalette(QPalette(color)); });
    //! [TavikColorButton]
    Look::row({fill, line, glow}, this);
}

void GuideWindow::colorPicker()
{
    //! [TavikColorPicker]
    auto *square = new TavikColorPicker(this); // 190 by 136 design pixels
    connect(square, &TavikColorPicker::colorChanged, this,
            [=](const QColor &picked) { setWindowTitle(picked.name()); });
    //! [TavikColorPicker]
    Look::row({square}, this);
}

void GuideWindow::colorSlider()
{
    //! [TavikColorSilder]
    auto *hue = new TavikColorSilder(this); // 0 to 360
    //! [TavikColorSilder]
    Look::row({hue}, this);
}

void GuideWindow::colorWell()
{
    //! [TavikColorWell]
    auto *well = new TavikColorWell(this);
    connect(well, &TavikColorWell::colorSelected, this,
            [=](const QColor &color) { setPalette(QPalette(color)); });
    connect(well, &TavikColorWell::addColorRequested, this,
            [=] { well->addColor(palette().color(QPalette::Window)); });
    //! [TavikColorWell]
    Look::row({well}, this);
}

void GuideWindow::gradientBar()
{
    //! [TavikGradientBar]
    auto *bar = new TavikGradientBar(this); // 200 by 24 design pixels
    connect(bar, &TavikGradientBar::selectedStartColor, this,
            [=](const QColor &color) { setWindowTitle(color.name()); });
    //! [TavikGradientBar]
    Look::row({bar}, this);
}

void GuideWindow::styling()
{
    const auto changed = [this](bool isRestyled) {
        //! [styling]
        auto *send = new TavikButton("Send", this);
        send->setBgColor("#108ee9");
        send->setHoverBgColor("#48aaee");
        send->setPressBgColor("#0f77c9");
        send->setBorderRadius("14");
        //! [styling]
        send->setRemSize(7, 2.333);
        if (!isRestyled)
            return send;
        //! [styling]
        send->updateStyleSheet(); // now it shows
        //! [styling]
        return send;
    };
    auto *send = new TavikButton("Send", this);
    send->setRemSize(7, 2.333);
    Look::row({Look::captioned(send, "as made"), Look::captioned(changed(false), "after the setters"),
               Look::captioned(changed(true), "after updateStyleSheet()")},
              this);
}
