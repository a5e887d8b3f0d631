#include "color/popupcontrols_p.h"

#include "buttons/taviklabel.h"
#include "color/tavikcolorpopup.h"
#include "color/whitebutton_p.h"
#include "foundation/lenconverter.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

void addGap(QVBoxLayout *column, double designPx)
{
    column->addSpacing(LenConverter::iniRemToPx(designPx));
}

void addCaption(QVBoxLayout *column, const QString &text)
{
    column->addWidget(new TavikLabel(text, TavikLabel::Assist));
}

} // namespace

void PopupControls::build(QVBoxLayout *column)
{
    addGap(column, 10);
    addCaption(column, TavikColorPopup::tr("Color Picker"));
    addGap(column, 7);
    buildSquare(column);
    addGap(column, 6);
    buildSliders(column);
    addGap(column, 10);
    fields.build(column);
    addGap(column, 8);
    addCaption(column, TavikColorPopup::tr("Colors"));
    addGap(column, 5);
    buildPalette(column);
    column->addStretch(0);
}

void PopupControls::buildSquare(QVBoxLayout *column)
{
    square = new TavikColorPicker(LenConverter::iniRemToPx(190), LenConverter::iniRemToPx(136));
    column->addWidget(square);
    column->setAlignment(square, Qt::AlignHCenter);
}

void PopupControls::buildSliders(QVBoxLayout *column)
{
    pipette = new TavikButton(QIcon(QStringLiteral(":/Color/images/color_picker.svg")), QSizeF(-1, -1),
                              TavikButton::Outline);
    pipette->setFixedSize(LenConverter::iniRemToPxSz(24, 24));
    WhiteButton::style(pipette);
    pipette->setAccessibleName(TavikColorPopup::tr("Pick a color from the screen"));

    const QSize size = LenConverter::iniRemToPxSz(166, 16);
    hue = new TavikColorSilder(size.width(), size.height(), TavikColorSilder::Hue);
    alpha = new TavikColorSilder(size.width(), size.height(), TavikColorSilder::Alpha);
    auto *sliders = new QVBoxLayout;
    sliders->setSpacing(LenConverter::iniRemToPx(1));
    sliders->addWidget(hue);
    sliders->addWidget(alpha);

    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(pipette);
    row->addLayout(sliders);
    column->addLayout(row);
}

void PopupControls::buildPalette(QVBoxLayout *column)
{
    palette = new TavikColorWell(LenConverter::iniRemToPx(186), LenConverter::iniRemToPx(43));
    column->addWidget(palette);
}

void PopupControls::showInSquareAndSliders(const QColor &color) const
{
    const QSignalBlocker blockers[] = {QSignalBlocker(hue), QSignalBlocker(square), QSignalBlocker(alpha)};
    hue->setValue(int(color.hueF() * 360.0));
    square->setCurrentHue(color.hueF());
    square->setCurrentColor(color);
    alpha->setValue(int(color.alphaF() * 255.0));
}

void PopupControls::takeFromSquareAndSliders(QColor *color) const
{
    const QColor picked = square->currentColor();
    color->setHsvF(hue->value() / 360.0, picked.saturationF(), picked.valueF(), alpha->value() / 255.0);
}
