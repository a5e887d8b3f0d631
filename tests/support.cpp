#include "support.h"

#include <Tavik/LenConverter>

namespace {

TestCase *runningTest = nullptr;

} // namespace

void TestCase::init()
{
    LenConverter::m_rem = 12;
    m_expected.clear();
    runningTest = this;
    m_previous = qInstallMessageHandler(handleMessage);
}

void TestCase::cleanup()
{
    qInstallMessageHandler(m_previous);
    runningTest = nullptr;
    for (const Expectation &expectation : qAsConst(m_expected)) {
        QVERIFY2(expectation.met, qPrintable(QStringLiteral("No warning came that matches ") +
                                             expectation.pattern.pattern()));
    }
}

void TestCase::expectWarning(const QString &pattern)
{
    m_expected.append({QRegularExpression(pattern)});
}

void TestCase::allowWarning(const QString &pattern)
{
    m_expected.append({QRegularExpression(pattern), true});
}

void TestCase::handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    for (Expectation &expectation : runningTest->m_expected) {
        if (expectation.pattern.match(text).hasMatch()) {
            expectation.met = true;
            return;
        }
    }
    // What the headless platform cannot do says nothing of us.
    if (text.startsWith(QLatin1String("This plugin does not support")))
        return;
    runningTest->m_previous(type, context, text);
    if (type == QtWarningMsg || type == QtCriticalMsg)
        QTest::qFail(qPrintable(QStringLiteral("Unexpected warning: ") + text), __FILE__, __LINE__);
}

void Support::preferHeadless()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

QString Support::expectedSheet(const QString &name)
{
    QFile file(QStringLiteral(TAVIK_TEST_SHEETS "/") + name + QLatin1String(".qss"));
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail(qPrintable(QStringLiteral("Cannot read ") + file.fileName()), __FILE__, __LINE__);
    return QString::fromUtf8(file.readAll());
}

QImage Support::picture(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

void Support::hover(QWidget *widget)
{
    // A button shows its hover look only after a move, an Enter event alone does not do it.
    const QPointF centre = QRectF(widget->rect()).center();
    QEnterEvent enter(centre, centre, widget->mapToGlobal(centre.toPoint()));
    QApplication::sendEvent(widget, &enter);
    QMouseEvent move(QEvent::MouseMove, centre, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

void Support::turnWheel(QWidget *widget)
{
    const QPointF centre = QRectF(widget->rect()).center();
    QWheelEvent event(centre, widget->mapToGlobal(centre.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // others never reach the parents
    qApp->notify(widget, &event);
}
