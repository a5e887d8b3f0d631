#include "support.h"
#include "xserver.h"

/// What the self-check finds in a process of its own, where each thing that it looks for is really amiss.
class TestSelfCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findings_data();
    void findings();

private:
    QTemporaryDir m_plugins; // with platforms, but nothing else
};

void TestSelfCheck::initTestCase()
{
    const QString all = QCoreApplication::libraryPaths().value(0); // the toolkit's own
    const QString platforms = QStringLiteral("/platforms");
    QVERIFY(QFile::link(all + platforms, m_plugins.path() + platforms));
}

void TestSelfCheck::findings_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("beginnings");
    const QString probe = QStringLiteral(SELFCHECK_PROBE);
    const QString x11 = QStringLiteral("xcb");
    const QString rem = QStringLiteral("--rem");
    const QString svg = QStringLiteral("The SVG image format is missing");
    const QString screen = QStringLiteral("There is no primary screen");
    QTest::newRow("all is well") << probe << x11 << QStringList{rem} << QStringList();
    QTest::newRow("no SVG") << probe << x11
                            << QStringList{rem, QStringLiteral("--plugins"), m_plugins.path()}
                            << QStringList{svg};
    QTest::newRow("no rem") << probe << x11 << QStringList()
                            << QStringList{QStringLiteral("LenConverter::initRem() was not called")};
    QTest::newRow("no resources") << QStringLiteral(SELFCHECK_BARE) << x11 << QStringList{rem}
                                  << QStringList{QStringLiteral("The library's resources cannot be read")};
    QTest::newRow("headless") << probe << QStringLiteral("minimal") << QStringList{rem}
                              << QStringList{QStringLiteral("The platform gives no picture of the screen")};
    QTest::newRow("no screen, SVG and rem")
        << probe << x11
        << QStringList{QStringLiteral("--core"), QStringLiteral("--plugins"), m_plugins.path()}
        << QStringList{svg, QStringLiteral("LenConverter::initRem() was not called"), screen};
}

void TestSelfCheck::findings()
{
    QFETCH(QString, program);
    QFETCH(QString, platform);
    QFETCH(QStringList, arguments);
    QProcess probe;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    probe.setProcessEnvironment(environment);
    probe.start(program, arguments);
    QVERIFY2(probe.waitForFinished(), qPrintable(program));
    QCOMPARE(probe.exitCode(), 0);
    const QString output = QString::fromLocal8Bit(probe.readAllStandardOutput());
    const QStringList found = output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QFETCH(QStringList, beginnings);
    QCOMPARE(found.size(), beginnings.size());
    for (int i = 0; i < found.size(); ++i)
        QVERIFY2(found.at(i).startsWith(beginnings.at(i)), qPrintable(output));
}

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const XServer server(1024, 768);
    TestSelfCheck test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_selfcheck.moc"
