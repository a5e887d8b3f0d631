#include "exportpanel.h"

#include "exporter.h"
#include "look.h"
#include "postersizes.h"

#include <QGridLayout>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QStackedWidget>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikCheckBox>
#include <Tavik/TavikComboBox>
#include <Tavik/TavikContainer>
#include <Tavik/TavikLabel>
#include <Tavik/TavikRadioButton>
#include <Tavik/TavikSpinbox>
#include <Tavik/TypographyTool>

namespace {

TavikSpinbox *sideField()
{
    auto *field = new TavikSpinbox(PosterSettings::MinimumSide, PosterSettings::MaximumSide, 10);
    field->setKeyboardTracking(false); // not while a number is being typed
    field->setRemSize(9, Look::FieldHeight);
    return field;
}

QProgressBar *progressBar()
{
    auto *bar = new QProgressBar;
    bar->setFixedHeight(LenConverter::remToPx(Look::FieldHeight));
    bar->setStyleSheet(QStringLiteral("QProgressBar {border: 1px solid #d3d3d3; border-radius: 4px;"
                                      " background: #ffffff; color: #404040; text-align: center;"
                                      " font-size: %1px;}"
                                      "QProgressBar::chunk {background: #9adbc5; border-radius: 3px;}")
                           .arg(TypographyTool::defualtFontSz()));
    return bar;
}

TavikContainer *row(std::initializer_list<QWidget *> widgets)
{
    auto *row = new TavikContainer(Horizontal);
    row->removeMargins();
    row->setSpacing(Look::Gap);
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    return row;
}

} // namespace

ExportPanel::ExportPanel(Poster *poster, Exporter *exporter, QWidget *parent)
    : Panel(tr("Size and export"), poster, parent)
    , m_size(new TavikComboBox)
    , m_width(sideField())
    , m_height(sideField())
    , m_single(new TavikRadioButton(tr("This size")))
    , m_several(new TavikRadioButton(tr("Several sizes:")))
    , m_export(Look::button(tr("Export..."), 10, false))
    , m_steps(new QStackedWidget)
{
    buildSize();
    buildBatch();
    buildProgress(exporter);
    connectControls();
    finish(false);
}

void ExportPanel::buildSize()
{
    for (const PosterSize &size : posterSizes())
        m_size->addItem(size.title, size.size);
    m_size->addItem(tr("Size of your own"));
    m_width->setAccessibleName(tr("Width"));
    m_height->setAccessibleName(tr("Height"));
    addRow(tr("Poster"), {Look::place(m_size, RemRowWidth)});
    addRow(tr("Pixels"), {m_width, Look::label(QStringLiteral("\u00d7")), m_height});
}

void ExportPanel::buildBatch()
{
    addRow(tr("Export"), {row({m_single, m_several})});
    auto *grid = new QWidget;
    auto *layout = new QGridLayout(grid);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(LenConverter::remToPx(Look::Gap));
    layout->setVerticalSpacing(LenConverter::remToPx(0.6));
    for (const PosterSize &size : posterSizes()) {
        auto *box = new TavikCheckBox(size.title);
        box->setToolTip(tr("%1 × %2 pixels").arg(size.size.width()).arg(size.size.height()));
        layout->addWidget(box, m_batch.size() / 2, m_batch.size() % 2);
        m_batch.append(box);
    }
    grid->setFixedWidth(LenConverter::remToPx(RemRowWidth));
    addRow({}, {grid});
}

void ExportPanel::buildProgress(Exporter *exporter)
{
    TavikButton *cancel = Look::button(tr("Cancel"), 8);
    QProgressBar *bar = progressBar();
    TavikContainer *start = row({m_export});
    start->addStretch();
    m_steps->addWidget(start);
    m_steps->addWidget(row({bar, cancel}));
    m_steps->setFixedWidth(LenConverter::remToPx(RemRowWidth));
    addRow({}, {m_steps});

    connect(cancel, &QPushButton::clicked, exporter, &Exporter::cancel);
    connect(exporter, &Exporter::progressed, this, [=](int done, int all) {
        m_steps->setCurrentIndex(1);
        bar->setMaximum(all);
        bar->setValue(done);
        bar->setFormat(tr("%1 of %2").arg(done).arg(all));
    });
    connect(exporter, &Exporter::finished, this, [=] { m_steps->setCurrentIndex(0); });
}

void ExportPanel::connectControls()
{
    connect(m_export, &QPushButton::clicked, this, &ExportPanel::exportWanted);
    connect(m_size, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QSize size = m_size->itemData(index).toSize();
        if (!size.isValid())
            return m_width->setFocus();
        poster()->edit(tr("size"), [=](PosterSettings &s) {
            s.width = size.width();
            s.height = size.height();
        });
    });
    for (TavikSpinbox *side : {m_width, m_height})
        connect(side, qOverload<int>(&QSpinBox::valueChanged), this, &ExportPanel::readSize);
    connect(m_several, &QRadioButton::toggled, this, &ExportPanel::readBatch);
    for (TavikCheckBox *box : qAsConst(m_batch)) {
        connect(box, &QCheckBox::clicked, m_several, [this] { m_several->setChecked(true); });
        connect(box, &QCheckBox::toggled, this, &ExportPanel::readBatch);
    }
}

void ExportPanel::readSize()
{
    poster()->edit(tr("size"), [this](PosterSettings &s) {
        s.width = m_width->value();
        s.height = m_height->value();
    });
}

void ExportPanel::readBatch()
{
    poster()->edit(tr("sizes to export"), [this](PosterSettings &s) {
        const QVector<PosterSize> sizes = posterSizes();
        s.isBatch = m_several->isChecked();
        s.batch.clear();
        for (int i = 0; i < sizes.size(); ++i) {
            if (m_batch.at(i)->isChecked())
                s.batch.append(sizes.at(i).name);
        }
    });
}

void ExportPanel::follow(const PosterSettings &settings)
{
    const QSignalBlocker blockers[] = {QSignalBlocker(m_width), QSignalBlocker(m_height),
                                       QSignalBlocker(m_single), QSignalBlocker(m_several)};
    const int index = m_size->findData(settings.size());
    m_size->setCurrentIndex(index >= 0 ? index : m_size->count() - 1); // only activated() is heard
    m_width->setValue(settings.width);
    m_height->setValue(settings.height);
    m_single->setChecked(!settings.isBatch);
    m_several->setChecked(settings.isBatch);
    const QVector<PosterSize> sizes = posterSizes();
    for (int i = 0; i < sizes.size(); ++i) {
        const QSignalBlocker blocker(m_batch.at(i));
        m_batch.at(i)->setChecked(settings.batch.contains(sizes.at(i).name));
    }
    m_export->setEnabled(!settings.exportSizes().isEmpty());
}
