#include "support.h"

#include <frame.h>
#include <look.h>
#include <pagetable.h>
#include <pictureswriter.h>
#include <remchoice.h>

#include <QProcess>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

class TestGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsClipped_data();
    void nothingIsClipped();
    void picturesWithoutADisplay();
    void badArguments_data();
    void badArguments();
};

namespace {

struct Outcome
{
    int exitCode;
    QString output;
};

Outcome runGallery(const QStringList &arguments)
{
    QProcess gallery;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    gallery.setProcessEnvironment(environment);
    gallery.setProcessChannelMode(QProcess::MergedChannels);
    gallery.start(QStringLiteral(TAVIK_GALLERY), arguments);
    gallery.waitForFinished(120000);
    return {gallery.exitStatus() == QProcess::NormalExit ? gallery.exitCode() : -1,
            QString::fromLocal8Bit(gallery.readAll())};
}

} // namespace

void TestGallery::nothingIsClipped_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("rem");
    for (const PageEntry &page : pageTable()) {
        for (int rem : Support::rems)
            QTest::addRow("%s at %d", qPrintable(page.name), rem) << page.name << rem;
    }
}

void TestGallery::nothingIsClipped()
{
    QFETCH(QString, page);
    QFETCH(int, rem);
    Look::apply(*qApp);
    Look::setRem(rem);
    Frame frame(page);
    PicturesWriter::settle(frame);
    frame.resize(Frame::goodSize());
    frame.grab();
    frame.resize(frame.width(), frame.fullHeight());
    QCoreApplication::processEvents();
    frame.grab();

    QString problem;
    QVERIFY(Support::lookForFaults(frame, &problem) > 50);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const auto *area = frame.findChild<QScrollArea *>();
    QVERIFY2(area->widget()->width() <= area->viewport()->width(), "the page is wider than its window");
    QVERIFY2(!area->verticalScrollBar()->isVisibleTo(area), "the page scrolls at its full height");
}

void TestGallery::picturesWithoutADisplay()
{
    const QTemporaryDir directory;
    const Outcome outcome =
        runGallery({QStringLiteral("--pictures"), directory.path(), QStringLiteral("--samples"),
                    directory.filePath(QStringLiteral("samples"))});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.output));
    for (const PageEntry &page : pageTable()) {
        QSize smaller;
        for (int rem : Support::rems) {
            const QImage picture(directory.filePath(QStringLiteral("%1-%2.png").arg(page.name).arg(rem)));
            QVERIFY(picture.width() > smaller.width() && picture.height() > smaller.height());
            smaller = picture.size();
        }
    }
    QVERIFY(!QImage(directory.filePath(QStringLiteral("samples/tavikbutton.png"))).isNull());
}

void TestGallery::badArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    QTest::newRow("page") << QStringList{QStringLiteral("--page"), QStringLiteral("nowhere")} << 2
                          << QStringLiteral("labels, buttons");
    QTest::newRow("rem") << QStringList{QStringLiteral("--rem"), QStringLiteral("11")} << 2
                         << QStringLiteral("10, 12, 18, 24, 30");
    QTest::newRow("no directory") << QStringList{QStringLiteral("--pictures"), QString()} << 2
                                  << QStringLiteral("--pictures needs a directory");
    QTest::newRow("directory") << QStringList{QStringLiteral("--pictures"), QStringLiteral("/dev/null/in")}
                               << 1 << QStringLiteral("/dev/null/in");
}

void TestGallery::badArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    // The headless platform, for the message is there before any window.
    const Outcome outcome =
        runGallery(arguments + QStringList{QStringLiteral("-platform"), QStringLiteral("offscreen")});
    QTEST(outcome.exitCode, "exitCode");
    QVERIFY2(outcome.output.contains(message), qPrintable(outcome.output));
}

TAVIK_TEST_MAIN(TestGallery)
#include "tst_gallery.moc"
