#include "photopanel.h"

#include "look.h"

#include <QDir>
#include <QFileInfo>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikColorButton>
#include <Tavik/TavikContainer>
#include <Tavik/TavikImageList>
#include <Tavik/TavikRadioButton>

namespace {

// What stands between thumbnails, and around each of them with that, in pixels.
constexpr int tileSpacing = 3;
constexpr int tileFrame = 12;

} // namespace

PhotoPanel::PhotoPanel(Poster *poster, QWidget *parent)
    : Panel(tr("Photograph"), poster, parent)
    , m_list(new TavikImageList)
    , m_photograph(new TavikRadioButton(tr("Photograph")))
    , m_plain(new TavikRadioButton(tr("Colour")))
    , m_ground(new TavikColorButton)
{
    buildList();
    m_ground->setRemSize(6, Look::FieldHeight);
    m_ground->setAccessibleName(tr("Colour in place of a photograph"));
    TavikButton *add = Look::button(tr("Add..."), 7);
    add->setToolTip(tr("Add photographs from files; or drop them on the window"));

    auto *row = new TavikContainer(Horizontal); // the radio buttons' parent, which makes them exclusive
    row->removeMargins();
    row->setSpacing(Look::Gap);
    row->addWidget(m_photograph);
    row->addWidget(m_plain);
    row->addWidget(m_ground);
    row->addStretch();
    row->addWidget(add);
    addWide(row);

    connect(add, &QPushButton::clicked, this, &PhotoPanel::filesWanted);
    connect(m_photograph, &QRadioButton::toggled, this, &PhotoPanel::read);
    connect(m_ground, &TavikColorButton::colorChanged, this, &PhotoPanel::read);
    finish(true);
}

void PhotoPanel::buildList()
{
    // Three in a row, and two rows before the list scrolls.
    QScrollBar *bar = m_list->verticalScrollBar();
    bar->ensurePolished();
    const int barWidth =
        qMax(bar->sizeHint().width(), bar->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    const double width =
        LenConverter::pxToRem((Panel::rowsWidth() - barWidth - tileSpacing) / 3 - tileFrame);
    m_list->setIconRemSz(width, width * 2 / 3); // before the first image
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setSpacing(tileSpacing);
    m_list->setFixedHeight(2 * (m_list->iconSize().height() + tileFrame) + tileSpacing);
    const QStringList names = Photograph::ownNames();
    for (const QString &name : names)
        addTile(Photograph(name));
    m_list->setAccessibleName(tr("Photographs"));
    addWide(m_list);
    connect(m_list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item)
            choose(item->data(Qt::UserRole).toString());
    });
}

QString PhotoPanel::addPhotographs(const QStringList &files)
{
    QStringList problems;
    QString last;
    for (const QString &path : files) {
        const QString file = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
        const Photograph photograph(file);
        if (photograph.isNull())
            problems.append(photograph.error());
        else
            last = file;
        if (!photograph.isNull() && !tile(file))
            addTile(photograph);
    }
    if (!last.isEmpty())
        choose(last);
    return problems.join(QLatin1Char(' '));
}

QListWidgetItem *PhotoPanel::tile(const QString &name) const
{
    for (int i = 0; i < m_list->count(); ++i) {
        if (m_list->item(i)->data(Qt::UserRole) == name)
            return m_list->item(i);
    }
    return nullptr;
}

QListWidgetItem *PhotoPanel::addTile(const Photograph &photograph)
{
    // The list's own addImage() stretches what has other proportions; these thumbnails are cut instead.
    const QPixmap thumbnail = QPixmap::fromImage(photograph.cover(m_list->iconSize()));
    QIcon icon(thumbnail);
    icon.addPixmap(thumbnail, QIcon::Selected); // or the toolkit tints the chosen one
    auto *item = new QListWidgetItem(m_list);
    item->setIcon(icon); // without a text, for which Qt 6 leaves a line even where it is empty
    item->setData(Qt::UserRole, photograph.name());
    item->setToolTip(Photograph::title(photograph.name()));
    return item;
}

void PhotoPanel::choose(const QString &name)
{
    poster()->edit(tr("photograph"), [=](PosterSettings &s) {
        s.hasPhotograph = true;
        s.photograph = name;
    });
}

void PhotoPanel::read()
{
    editColor(tr("photograph"), [this](PosterSettings &s) {
        s.hasPhotograph = m_photograph->isChecked();
        s.ground = m_ground->currentColor();
    });
}

void PhotoPanel::follow(const PosterSettings &settings)
{
    const QSignalBlocker blockers[] = {QSignalBlocker(m_list), QSignalBlocker(m_photograph),
                                       QSignalBlocker(m_plain), QSignalBlocker(m_ground)};
    m_photograph->setChecked(settings.hasPhotograph);
    m_plain->setChecked(!settings.hasPhotograph);
    m_ground->setCurrentColor(settings.ground);
    QListWidgetItem *item = tile(settings.photograph);
    if (!item && !poster()->photograph().isNull())
        item = addTile(poster()->photograph());
    m_list->setCurrentItem(settings.hasPhotograph ? item : nullptr);
}

void PhotoPanel::showEvent(QShowEvent *event)
{
    Panel::showEvent(event);
    // A list has no current tile when it is shown.
    follow(poster()->settings());
}
