#include "actions.h"
#include "busy.h"
#include "finding.h"
#include "stage.h"

#include <Tavik/LenConverter>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QScrollBar>
#include <QTimerEvent>

#include <unistd.h>

namespace {

/// Knows which widgets are in the middle of an event.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (event->type() == QEvent::ContextMenu && opensMenuInALoop(receiver))
            return true;
        if (!receiver->isWidgetType())
            return QApplication::notify(receiver, event);
        const Busy busy(receiver, Busy::Buttons, event->type());
        return QApplication::notify(receiver, event);
    }

private:
    /// The toolkit's spin boxes and scroll bars open their menus in an event loop of their own, where the storm
    /// would stand still.
    static bool opensMenuInALoop(const QObject *object)
    {
        while (object && !qobject_cast<const QAbstractSpinBox *>(object) &&
               !qobject_cast<const QScrollBar *>(object))
            object = object->parent();
        return object;
    }
};

struct Options
{
    quint64 seed = 1;
    int from = 0; // the first step
    int to = 0;   // the step after the last one
    QString log;
};

Options readOptions(const QCoreApplication &app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Does random things to a window with every control. The same seed does the same things.\n"
        "The log's last line tells what was being done when a fault was found."));
    parser.addHelpOption();
    const QString number = QStringLiteral("number");
    parser.addOption({QStringLiteral("seed"), QStringLiteral("Which storm."), number, QStringLiteral("1")});
    parser.addOption({QStringLiteral("from"),
                      QStringLiteral("The first step: to find out which steps a fault needs."), number,
                      QStringLiteral("0")});
    parser.addOption({QStringLiteral("count"), QStringLiteral("The step to end before."), number,
                      QStringLiteral("20000")});
    parser.addOption({QStringLiteral("log"), QStringLiteral("Where to write the steps, a line each."),
                      QStringLiteral("file"), QStringLiteral("storm.log")});
    parser.process(app);
    const auto value = [&](const char *name) { return parser.value(QLatin1String(name)); };
    return {value("seed").toULongLong(), value("from").toInt(), value("count").toInt(), value("log")};
}

/// Does the steps, one after another, some of them before the event loop has its turn again.
class Storm : public QObject
{
public:
    explicit Storm(const Options &options)
        : m_options(options)
        , m_log(options.log)
        , m_step(options.from)
    {
        if (!m_log.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            Finding::end(QStringLiteral("Cannot write ") + options.log);
        startTimer(0);
    }

protected:
    void timerEvent(QTimerEvent *event) override
    {
        // A deed that processes events must not bring the next one forward.
        killTimer(event->timerId());
        alarm(60); // a step without an end is a finding too: the log's last line names it
        // The loop may be late with them after events were processed within a deed.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Finding::checkSettled();
        while (m_step < m_options.to) {
            Random random(m_options.seed, quint64(m_step));
            doStep(random);
            ++m_step;
            if (random.oneIn(4))
                break;
        }
        if (m_step < m_options.to)
            startTimer(0);
        else
            QCoreApplication::quit();
    }

private:
    void doStep(Random &random)
    {
        const Deed deed = Actions::any(random);
        const QString line = QStringLiteral("%1 %2\n").arg(m_step).arg(deed.text);
        m_log.write(line.toUtf8());
        deed.act(m_stage);
        Finding::check(m_stage);
    }

    Options m_options;
    QFile m_log;
    int m_step;
    Stage m_stage;
};

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const Options options = readOptions(app);
    Finding::listenToMessages();
    LenConverter::initRem();
    {
        const Storm storm(options);
        QApplication::exec();
    }
    Finding::checkNothingIsLeft();
    return 0;
}
