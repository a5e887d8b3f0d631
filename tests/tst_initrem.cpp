#include "support.h"
#include "xserver.h"

#include <Tavik/LenConverter>

#include <cstdio>
#include <cstring>

/// The rem that a real screen of a given width leads to. Each row starts an X server of its own and, on
/// it, this program once more, which then only prints what initRem() chose.
class TestInitRem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bands();
};

void TestInitRem::bands()
{
    const std::pair<int, int> rows[] = {{1366, 10}, {1600, 10}, {1601, 12}, {1920, 12},
                                        {2048, 12}, {2049, 18}, {2560, 18}, {2561, 24},
                                        {3200, 24}, {3201, 30}, {3840, 30}};
    for (const auto &[width, rem] : rows) {
        const XServer server(width, 900);
        QCOMPARE(XServer::outputOfThisProgram(QStringLiteral("--print-rem")).toInt(), rem);
    }
}

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--print-rem") == 0) {
        const QGuiApplication app(argc, argv);
        LenConverter::initRem();
        std::printf("%d\n", LenConverter::m_rem);
        return 0;
    }
    Support::preferHeadless();
    const QCoreApplication app(argc, argv);
    TestInitRem test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_initrem.moc"
