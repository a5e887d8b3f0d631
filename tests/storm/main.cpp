#include "../surroundings.h"
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
        const QPointer<QObject> alive = receiver;
        if (event->type() == QEvent::DeferredDelete)
            Stage::closeLists(receiver);
        if (!alive)
            return true;
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

/// Reads --seed, --from, --count and --log.
void readOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Does random things to a window with every control. The same seed does the same things.\n"
        "The log's last line tells what was being done when a fault was found."));
    parser->addHelpOption();
    const auto add = [&](const char *name, const char *description, const char *byDefault) {
        parser->addOption({QLatin1String(name), QLatin1String(description), QStringLiteral("value"),
                           QLatin1String(byDefault)});
    };
    add("seed", "Which storm.", "1");
    add("from", "The first step: to find out which steps a fault needs.", "0");
    add("count", "The step to end before.", "20000");
    add("log", "Where to write the steps, a line each.", "storm.log");
    parser->process(*qApp);
}

/// Does the steps, one after another, some of them before the event loop has its turn again.
class Storm : public QObject
{
public:
    explicit Storm(const QCommandLineParser &options)
        : m_seed(options.value(QStringLiteral("seed")).toULongLong())
        , m_step(options.value(QStringLiteral("from")).toInt())
        , m_end(options.value(QStringLiteral("count")).toInt())
        , m_log(options.value(QStringLiteral("log")))
    {
        if (!m_log.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            Finding::end(QStringLiteral("Cannot write ") + m_log.fileName());
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
        while (m_step < m_end) {
            Random random(m_seed, quint64(m_step));
            doStep(random);
            ++m_step;
            if (random.oneIn(4))
                break;
        }
        if (m_step < m_end)
            startTimer(0);
        else
            QCoreApplication::quit();
    }

private:
    void doStep(Random &random)
    {
        const Deed deed = Actions::any(random);
        m_log.write(QStringLiteral("%1 %2\n").arg(m_step).arg(deed.text).toUtf8());
        deed.act(m_stage);
        Finding::check(m_stage);
    }

    quint64 m_seed;
    int m_step;
    int m_end; // the step after the last one
    QFile m_log;
    Stage m_stage;
};

} // namespace

int main(int argc, char **argv)
{
    forgetSurroundings();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QCommandLineParser options;
    readOptions(&options);
    Finding::listenToMessages();
    LenConverter::initRem();
    {
        const Storm storm(options);
        QApplication::exec();
    }
    Finding::checkNothingIsLeft();
    return 0;
}
