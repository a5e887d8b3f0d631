#include "support.h"

#include "surroundings.h"

#include <QAbstractButton>
#include <QLabel>

#include <Tavik/LenConverter>

namespace {

TestCase *runningTest = nullptr;

/// The size of the text that a widget shows, empty if it shows none or may wrap it.
QSize textSize(const QWidget *widget)
{
    QString text;
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        text = label->wordWrap() ? QString() : label->text();
    else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        text = button->text();
    return text.isEmpty() ? QSize(0, 0) : widget->fontMetrics().size(Qt::TextShowMnemonic, text);
}

/// What is wrong with where a widget stands, empty if nothing is.
QString fault(const QWidget *widget)
{
    const QSize text = textSize(widget);
    if (text.width() > widget->width() || text.height() > widget->height())
        return QStringLiteral("its text is clipped");
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap() && label->heightForWidth(label->width()) > label->height())
        return QStringLiteral("its lines are clipped");
    if (!widget->parentWidget()->rect().contains(widget->geometry()))
        return QStringLiteral("it stands outside its parent");
    return {};
}

/// Whether a widget need not stand inside its parent.
bool isExempt(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    // What a view scrolls is larger than the view on purpose.
    const bool isScrolled = parent->inherits("QAbstractScrollArea") ||
                            parent->objectName() == QLatin1String("qt_scrollarea_viewport");
    const bool isClosed = parent->height() == 0; // what a closed panel holds
    return isScrolled || isClosed || widget->isWindow();
}

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
    forgetSurroundings();
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
    const QPointF onScreen = widget->mapToGlobal(centre.toPoint());
    QEnterEvent enter(centre, centre, onScreen);
    QApplication::sendEvent(widget, &enter);
    QMouseEvent move(QEvent::MouseMove, centre, onScreen, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

QWidget *Support::runningSampler()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->inherits("Screenshot") && window->isVisible())
            return window;
    }
    return nullptr;
}

void Support::turnWheel(QWidget *widget)
{
    const QPointF centre = QRectF(widget->rect()).center();
    QWheelEvent event(centre, widget->mapToGlobal(centre.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // others never reach the parents
    qApp->notify(widget, &event);
}

int Support::lookForFaults(const QWidget &window, QString *problem)
{
    int seen = 0;
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisibleTo(&window) || isExempt(widget))
            continue;
        *problem = fault(widget);
        if (!problem->isEmpty()) {
            *problem = QStringLiteral("%1 \"%2\" of %3x%4: %5")
                           .arg(QString::fromLatin1(widget->metaObject()->className()),
                                widget->property("text").toString())
                           .arg(widget->width())
                           .arg(widget->height())
                           .arg(*problem);
            return seen;
        }
        ++seen;
    }
    return seen;
}
