#include "captionpanel.h"

#include "look.h"

#include <QSignalBlocker>

#include <Tavik/TavikButtonGroup>
#include <Tavik/TavikCheckBox>
#include <Tavik/TavikColorButton>
#include <Tavik/TavikDoubleSpinbox>
#include <Tavik/TavikFontFamilyComboBox>
#include <Tavik/TavikLabel>
#include <Tavik/TavikLineEdit>

namespace {

TavikButtonGroup *choice(const QStringList &names)
{
    auto *group =
        new TavikButtonGroup(Horizontal, 1.167, QSizeF(Panel::RemRowWidth / 3, Look::FieldHeight));
    for (const QString &name : names)
        group->addTextButton(name);
    return group;
}

} // namespace

CaptionPanel::CaptionPanel(Poster *poster, QWidget *parent)
    : Panel(tr("Caption"), poster, parent)
    , m_text(new TavikLineEdit(tr("Nothing is written on the poster")))
    , m_family(new TavikFontFamilyComboBox)
    , m_size(new TavikDoubleSpinbox(1, 50, 0.5))
    , m_bold(new TavikCheckBox(tr("Bold")))
    , m_color(new TavikColorButton)
    , m_shadow(new TavikColorButton)
    , m_column(choice({tr("Left"), tr("Centre"), tr("Right")}))
    , m_row(choice({tr("Top"), tr("Middle"), tr("Bottom")}))
{
    buildRows();
    connectControls();
    finish(true);
}

void CaptionPanel::buildRows()
{
    m_text->setRemSize(RemRowWidth, Look::FieldHeight);
    m_size->setSuffix(QStringLiteral(" %"));
    m_size->setToolTip(tr("Size of the letters, in percent of the poster's shorter side"));
    m_size->setRemSize(9, Look::FieldHeight);
    m_color->setRemSize(8, Look::FieldHeight);
    m_shadow->setRemSize(8, Look::FieldHeight);

    m_shadow->setAccessibleName(tr("Shadow"));

    addRow(tr("Text"), {m_text});
    addRow(tr("Font"), {Look::place(m_family, RemRowWidth)});
    addRow(tr("Size"), {m_size, m_bold});
    addRow(tr("Colour"), {m_color, Look::label(tr("Shadow")), m_shadow});
    addRow(tr("Place"), {m_column});
    addRow({}, {m_row});
}

void CaptionPanel::connectControls()
{
    connect(m_text, &QLineEdit::textChanged, this, [this](const QString &text) {
        poster()->edit(tr("caption"), [=](PosterSettings &s) { s.caption = text; });
    });
    connect(m_family, &QComboBox::currentTextChanged, this, [this](const QString &family) {
        if (m_family->findText(family) >= 0) // not while a name is being typed
            poster()->edit(tr("font"), [=](PosterSettings &s) { s.family = family; });
    });
    connect(m_size, qOverload<double>(&QDoubleSpinBox::valueChanged), this, [this](double size) {
        poster()->edit(tr("caption size"), [=](PosterSettings &s) { s.captionSize = size; });
    });
    connect(m_bold, &QCheckBox::toggled, this, [this](bool isBold) {
        poster()->edit(tr("bold"), [=](PosterSettings &s) { s.isBold = isBold; });
    });
    connect(m_color, &TavikColorButton::colorChanged, this, [this](const QColor &color) {
        editColor(tr("caption colour"), [=](PosterSettings &s) { s.captionColor = color; });
    });
    connect(m_shadow, &TavikColorButton::colorChanged, this, [this](const QColor &color) {
        editColor(tr("shadow colour"), [=](PosterSettings &s) { s.shadowColor = color; });
    });
    connect(m_column, &TavikButtonGroup::buttonClicked, this, [this](int column) {
        poster()->edit(tr("place"), [=](PosterSettings &s) { s.captionColumn = column; });
    });
    connect(m_row, &TavikButtonGroup::buttonClicked, this, [this](int row) {
        poster()->edit(tr("place"), [=](PosterSettings &s) { s.captionRow = row; });
    });
}

void CaptionPanel::follow(const PosterSettings &settings)
{
    const QSignalBlocker blockers[] = {QSignalBlocker(m_text),  QSignalBlocker(m_family),
                                       QSignalBlocker(m_size),  QSignalBlocker(m_bold),
                                       QSignalBlocker(m_color), QSignalBlocker(m_shadow)};
    if (m_text->text() != settings.caption) // the cursor would leave its place
        m_text->setText(settings.caption);
    const QString family = settings.family.isEmpty() ? font().family() : settings.family;
    if (m_family->currentText() != family) {
        m_family->setCurrentIndex(m_family->findText(family));
        m_family->setCurrentText(family); // one that isn't installed has no index
    }
    m_size->setValue(settings.captionSize);
    m_bold->setChecked(settings.isBold);
    m_color->setCurrentColor(settings.captionColor);
    m_shadow->setCurrentColor(settings.shadowColor);
    m_column->setCheckedId(settings.captionColumn); // emits nothing
    m_row->setCheckedId(settings.captionRow);
}
