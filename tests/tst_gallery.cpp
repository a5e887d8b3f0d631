#include "support.h"

#include <frame.h>
#include <look.h>
#include <pagetable.h>
#include <pictureswriter.h>
#include <remchoice.h>
#include <snippet.h>

#include <QProcess>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

class TestGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void snippets();
    void nothingIsClipped();
    void picturesWithoutADisplay();
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

void TestGallery::snippets()
{
    const QString source =
        QStringLiteral("    //! [whole]\n    if (a)\n        b;\n    //! [open]\n    //! [whole]\n"
                       "    c;\n  //! [whole]\n  d;\n  //! [whole]\n");
    QCOMPARE(Snippet::find(source, QStringLiteral("whole")), QStringLiteral("if (a)\n    b;\nd;"));
    for (const char *name : {"open", "unknown"})
        QVERIFY2(Snippet::find(source, QLatin1String(name)).isEmpty(), name);
}

void TestGallery::nothingIsClipped()
{
    Look::apply(*qApp);
    for (const PageEntry &page : pageTable()) {
        for (const int rem : Support::rems) {
            Look::setRem(rem);
            Frame frame(page.name);
            PicturesWriter::settle(frame);
            frame.resize(Frame::goodSize());
            frame.grab();
            frame.resize(frame.width(), frame.fullHeight());
            QCoreApplication::processEvents();
            frame.grab();

            const QString where = QStringLiteral("%1 at %2: ").arg(page.name).arg(rem);
            QString problem;
            const int seen = Support::lookForFaults(frame, &problem);
            QVERIFY2(problem.isEmpty(), qPrintable(where + problem));
            QVERIFY2(seen > 50, qPrintable(where));
            const auto *area = frame.findChild<QScrollArea *>();
            QVERIFY2(area->widget()->width() <= area->viewport()->width(),
                     qPrintable(where + QStringLiteral("wider than its window")));
            QVERIFY2(!area->verticalScrollBar()->isVisibleTo(area),
                     qPrintable(where + QStringLiteral("scrolls at its full height")));
        }
    }
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

void TestGallery::badArguments()
{
    const struct
    {
        QString arguments;
        int exitCode;
        QString message;
    } rows[] = {
        {QStringLiteral("--page nowhere"), 2, QStringLiteral("labels, buttons")},
        {QStringLiteral("--pictures="), 2, QStringLiteral("--pictures needs a directory")},
        {QStringLiteral("--pictures /dev/null/in"), 1, QStringLiteral("/dev/null/in")},
    };
    for (const auto &row : rows) {
        // On the headless platform, for the message is there before any window.
        const Outcome outcome =
            runGallery((row.arguments + QStringLiteral(" -platform offscreen")).split(QLatin1Char(' ')));
        QCOMPARE(outcome.exitCode, row.exitCode);
        QVERIFY2(outcome.output.contains(row.message), qPrintable(outcome.output));
    }
}

TAVIK_TEST_MAIN(TestGallery)
#include "tst_gallery.moc"
