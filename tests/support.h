#ifndef TAVIK_TESTS_SUPPORT_H
#define TAVIK_TESTS_SUPPORT_H

#include <QApplication>
#include <QRegularExpression>
#include <QtTest>

/// Base of every test class: headless and in Fusion style unless told otherwise, 12 pixels per rem at
/// the start of each test function, and any unexpected warning of the toolkit is a failure.
class TestCase : public QObject
{
    Q_OBJECT

protected:
    /// Lets warnings that match pass in the present test function, which fails if none comes.
    void expectWarning(const QString &pattern);

    /// Lets warnings that match pass in the present test function.
    void allowWarning(const QString &pattern);

private Q_SLOTS:
    void init();
    void cleanup();

private:
    static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text);

    struct Expectation
    {
        QRegularExpression pattern;
        bool met = false;
    };
    QVector<Expectation> m_expected;
    QtMessageHandler m_previous = nullptr;
};

namespace Support {

/// The five values that one rem can have, in pixels.
constexpr int rems[] = {10, 12, 18, 24, 30};

/// Makes the process headless, unless the caller's environment names a platform, and forgets the surroundings.
void preferHeadless();

/// The exact sheet that tests/sheets/<name>.qss holds.
QString expectedSheet(const QString &name);

/// The widget's picture; with a device pixel ratio of 1 a picture's pixels are the widget's.
QImage picture(QWidget *widget);

/// Puts a widget under the pointer, as the toolkit sees it.
void hover(QWidget *widget);

/// The window of the sampler that is on the screen, or null.
QWidget *runningSampler();

/// Turns the wheel by one notch over a widget, as a real mouse does: what the widget leaves goes to its
/// parents.
void turnWheel(QWidget *widget);

/// Looks through what a window shows for text that is clipped and for widgets outside their parents. Describes
/// the first fault, if there is one, and returns how many widgets were seen before it.
int lookForFaults(const QWidget &window, QString *fault);

} // namespace Support

#define TAVIK_TEST_MAIN(TestClass)                                                                         \
    int main(int argc, char **argv)                                                                        \
    {                                                                                                      \
        Support::preferHeadless();                                                                         \
        QApplication app(argc, argv);                                                                      \
        QApplication::setStyle(QStringLiteral("Fusion"));                                                  \
        TestClass test;                                                                                    \
        return QTest::qExec(&test, argc, argv);                                                            \
    }

#endif
