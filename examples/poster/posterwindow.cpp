#include "posterwindow.h"

#include "captionpanel.h"
#include "common/filedrop.h"
#include "common/picturefiles.h"
#include "exportpanel.h"
#include "gradientpanel.h"
#include "header.h"
#include "look.h"
#include "messagebar.h"
#include "photopanel.h"
#include "preview.h"
#include "settingsfile.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>

#include <Tavik/LenConverter>
#include <Tavik/TavikColorWiring>
#include <Tavik/TavikLabel>
#include <Tavik/TavikScrollArea>

namespace {

/// Whether a field is about to take undo for its own text; here it is the poster's.
bool isUndoInField(const QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    return key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
}

/// Whether the wheel would change a combo box that only happens to be under the pointer.
bool isStrayWheel(const QObject *watched, const QEvent *event)
{
    const auto *combo = qobject_cast<const QComboBox *>(watched);
    return event->type() == QEvent::Wheel && combo && !combo->hasFocus();
}

/// Asks for a file to write; a name without a suffix gets that of the proposed one. Empty if cancelled.
QString askForTarget(QWidget *parent, const QString &title, const QString &proposed, const QString &filter,
                     QFileDialog::Options options = {})
{
    QFileDialog dialog(parent, title, QFileInfo(proposed).path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QFileInfo(proposed).suffix());
    dialog.setOptions(options);
    dialog.selectFile(QFileInfo(proposed).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

PosterWindow::PosterWindow(QWidget *parent)
    : QWidget(parent)
    , m_messages(new MessageBar)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1); // the lines between the panes are the ground that shows through
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Midlight);
    layout->addWidget(buildHeader(), 0, 0, 1, 2);
    layout->addWidget(buildStage(), 1, 0);
    layout->addWidget(buildPanels(), 1, 1);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(1, 1);

    connect(new FileDrop(this), &FileDrop::dropped, this, &PosterWindow::addPhotographs);
    connectExporter();
    connect(&m_poster, &Poster::photographMissing, m_messages, &MessageBar::complain);
    connect(m_poster.undoStack(), &QUndoStack::cleanChanged, this, &PosterWindow::showTitle);
    connect(m_poster.undoStack(), &QUndoStack::indexChanged, this, &PosterWindow::forgetUndoneFile);
    connect(qApp, &QApplication::focusChanged, &m_poster, &Poster::beginStep); // by keys
    qApp->installEventFilter(this);
    showTitle();
    const QSize titleBar(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    resize(goodSize().boundedTo(screen()->availableSize() - titleBar));
}

QSize PosterWindow::goodSize()
{
    return {LenConverter::remToPx(118), LenConverter::remToPx(68)};
}

QWidget *PosterWindow::buildHeader()
{
    auto *header = new Header(m_poster.undoStack());
    connect(header, &Header::openWanted, this, &PosterWindow::askToOpen);
    connect(header, &Header::saveWanted, this, &PosterWindow::save);
    connect(header, &Header::saveAsWanted, this, &PosterWindow::saveAs);
    return header;
}

QWidget *PosterWindow::buildStage()
{
    auto *stage = new QWidget;
    auto *preview = new Preview(&m_poster);
    auto *footer = new TavikLabel({}, TavikLabel::Assist);
    footer->setFixedHeight(LenConverter::remToPx(2.5));
    footer->setAlignment(Qt::AlignCenter);
    footer->setAutoFillBackground(true);
    footer->setBackgroundRole(QPalette::Base);
    connect(preview, &Preview::scaleChanged, footer, [=](double scale) {
        const PosterSettings &settings = m_poster.settings();
        const QString size = tr("%1 × %2 pixels, seen at %3 %").arg(settings.width).arg(settings.height);
        footer->setText(size.arg(qRound(scale * 100)));
    });
    auto *layout = new QVBoxLayout(stage);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(preview, 1);
    layout->addWidget(m_messages);
    layout->addWidget(footer);
    return stage;
}

QWidget *PosterWindow::buildPanels()
{
    m_photographs = new PhotoPanel(&m_poster);
    auto *gradient = new GradientPanel(&m_poster);
    auto *caption = new CaptionPanel(&m_poster);
    auto *size = new ExportPanel(&m_poster, &m_exporter);
    connect(m_photographs, &PhotoPanel::filesWanted, this, &PosterWindow::askForPhotographs);
    connect(size, &ExportPanel::exportWanted, this, &PosterWindow::askToExport);

    auto *colours = new TavikColorWiring(this);
    colours->serve(m_photographs->groundButton());
    colours->serve(gradient->bar());
    colours->serve(caption->textButton());
    colours->serve(caption->shadowButton());

    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    const int gap = LenConverter::remToPx(Look::Gap);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    auto *area =
        new TavikScrollArea(QStringLiteral("0"), QStringLiteral("#ffffff"), QStringLiteral("#ffffff"));
    for (Panel *panel : std::initializer_list<Panel *>{m_photographs, gradient, caption, size}) {
        layout->addWidget(panel);
        ++m_movingPanels;
        connect(panel, &TavikExpandable::animationFinished, this, [=] {
            if (m_movingPanels == 0)
                area->ensureWidgetVisible(panel, 0, gap);
            else if (--m_movingPanels == 0)
                Q_EMIT settled();
        });
    }
    layout->addStretch(1);
    area->setFocusPolicy(Qt::NoFocus); // its keys come to it from the controls inside
    area->setWidgetResizable(true);
    area->setWidget(column);
    column->setAutoFillBackground(false); // the area's own ground
    area->setRemWidth(Panel::RemWidth + 2 * Look::Gap + 1.5);
    return area;
}

void PosterWindow::connectExporter()
{
    connect(&m_exporter, &Exporter::finished, this, [this](bool isDone, const QString &message) {
        isDone ? m_messages->tell(message) : m_messages->complain(message);
    });
}

void PosterWindow::showTitle()
{
    const QString name = m_file.isEmpty() ? tr("New poster") : QFileInfo(m_file).fileName();
    setWindowTitle(tr("%1[*] - Tavik Poster").arg(name));
    setWindowModified(!m_poster.undoStack()->isClean());
}

PosterWindow::~PosterWindow()
{
    // It tells of its emptying when this window is half gone.
    m_poster.undoStack()->disconnect(this);
}

void PosterWindow::openSettings(const QString &file)
{
    PosterSettings settings;
    const QString problem = SettingsFile(file).read(settings);
    report(problem);
    if (!problem.isEmpty())
        return;
    m_poster.beginStep();
    m_poster.edit(tr("opening %1").arg(QFileInfo(file).fileName()),
                  [=](PosterSettings &s) { s = settings; });
    m_file = file;
    m_openedAt = m_poster.undoStack()->index();
    m_poster.undoStack()->setClean();
    showTitle();
}

void PosterWindow::forgetUndoneFile(int index)
{
    if (index >= m_openedAt)
        return;
    m_file.clear(); // or the next save would write another poster over what was opened
    m_openedAt = 0;
    showTitle();
}

bool PosterWindow::saveSettings(const QString &file)
{
    const QString problem = SettingsFile(file).write(m_poster.settings());
    report(problem, tr("Saved to %1.").arg(QDir::toNativeSeparators(file)));
    if (!problem.isEmpty())
        return false;
    m_file = file;
    m_poster.undoStack()->setClean();
    showTitle();
    return true;
}

bool PosterWindow::save()
{
    return m_file.isEmpty() ? saveAs() : saveSettings(m_file);
}

bool PosterWindow::saveAs()
{
    const QString start = m_file.isEmpty() ? QStringLiteral("poster.json") : m_file;
    const QString file =
        askForTarget(this, tr("Save the poster's settings"), start, tr("Posters (*.json)"));
    return !file.isEmpty() && saveSettings(file);
}

void PosterWindow::askToOpen()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open a poster's settings"), m_file, tr("Posters (*.json)"));
    if (!file.isEmpty())
        openSettings(file);
}

void PosterWindow::exportTo(const QString &file)
{
    m_messages->tell({});
    m_exporter.start(m_poster.settings(), m_poster.photograph(), Exporter::jobs(m_poster.settings(), file));
}

void PosterWindow::askToExport()
{
    const bool isBatch = m_poster.settings().isBatch;
    const QString title = isBatch ? tr("Export: each file's name will end in its size") : tr("Export");
    QFileDialog::Options options;
    options.setFlag(QFileDialog::DontConfirmOverwrite, isBatch); // mayReplace() asks
    const QString file =
        askForTarget(this, title, QStringLiteral("poster.png"), tr("Pictures (*.png)"), options);
    if (!file.isEmpty() && (!isBatch || mayReplace(Exporter::jobs(m_poster.settings(), file))))
        exportTo(file);
}

bool PosterWindow::mayReplace(const QVector<Exporter::Job> &jobs)
{
    QStringList present;
    for (const Exporter::Job &job : jobs) {
        if (QFileInfo::exists(job.file))
            present.append(QFileInfo(job.file).fileName());
    }
    const QString question =
        tr("These files are there already. Replace them?\n\n%1").arg(present.join(QLatin1Char('\n')));
    return present.isEmpty() || QMessageBox::question(this, tr("Export"), question) == QMessageBox::Yes;
}

void PosterWindow::addPhotographs(const QStringList &files)
{
    m_poster.beginStep();
    report(m_photographs->addPhotographs(files));
}

void PosterWindow::askForPhotographs()
{
    addPhotographs(PictureFiles::ask(this, tr("Add photographs")));
}

QString PosterWindow::message() const
{
    return m_messages->text();
}

void PosterWindow::report(const QString &problem, const QString &success)
{
    problem.isEmpty() ? m_messages->tell(success) : m_messages->complain(problem);
}

bool PosterWindow::eventFilter(QObject *watched, QEvent *event)
{
    // All that is done by one press of the mouse, in the popup and the sampler too, is undone at once.
    if (event->type() == QEvent::MouseButtonPress && watched->isWindowType())
        m_poster.beginStep();
    if (!isUndoInField(event) && !isStrayWheel(watched, event))
        return QWidget::eventFilter(watched, event);
    event->ignore(); // leaves the keys to the shortcuts, and the wheel to the panels around the control
    return true;
}

void PosterWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayClose());
}

bool PosterWindow::mayClose()
{
    if (m_poster.undoStack()->isClean())
        return true;
    const QMessageBox::StandardButton answer =
        QMessageBox::question(this, tr("Close"), tr("Save the changes to this poster?"),
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}
