#include "support.h"

#include <exporter.h>
#include <gradienttext.h>
#include <posterpainter.h>
#include <posterwindow.h>
#include <settingsfile.h>

#include <Tavik/Tavik>

#include <QMimeData>
#include <QPainter>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>

#include <sys/stat.h>

class TestPoster : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void photographsInPicturesOut();
    void gradientAsText();
    void onePopupForEveryColour();
    void aDragIsOneUndo();
    void settingsAreSavedAndOpened();
    void brokenSettings();
    void aBrokenFileLosesNothing();
    void cancelledBatch();
    void nothingIsClipped();
    void commandLine();
};

namespace {

QString operator""_s(const char *text, std::size_t)
{
    return QString::fromUtf8(text);
}

/// A photograph whose left half is red and whose right half is blue.
QString writePhotograph(const QTemporaryDir &directory)
{
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QPainter(&image).fillRect(0, 0, 150, 200, Qt::red);
    const QString file = directory.filePath("halves.png"_s);
    image.save(file);
    return file;
}

/// The one control of its kind that a test means, by the text it shows.
template <class Control>
Control *withText(const QWidget &window, const QString &text)
{
    for (Control *control : window.findChildren<Control *>()) {
        if (control->text() == text)
            return control;
    }
    qFatal("No control \"%s\"", qPrintable(text));
}

/// Exports, and waits until that is done. Returns what the user is told.
QString exported(PosterWindow &window, const QString &file)
{
    QSignalSpy finished(window.exporter(), &Exporter::finished);
    window.exportTo(file);
    finished.wait(60000);
    return window.message();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Can't write %s", qPrintable(path));
}

} // namespace

void TestPoster::photographsInPicturesOut()
{
    const QTemporaryDir directory;
    PosterWindow window;
    window.show();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(writePhotograph(directory))});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QCOMPARE(window.findChild<TavikImageList *>()->count(), Photograph::ownNames().size() + 1);

    withText<TavikLineEdit>(window, "Above the clouds"_s)->clear();
    auto *bar = window.findChild<TavikGradientBar *>();
    bar->setStartValue(0);
    bar->setEndValue(100);
    bar->setStartColor(Qt::green);
    bar->setEndColor(QColor(0, 255, 0, 0));
    window.findChild<TavikDial *>()->setValue(270); // to the right

    QVERIFY(exported(window, directory.filePath("one.png"_s)).contains("one.png"_s));
    const QImage one(directory.filePath("one.png"_s));
    QCOMPARE(one.size(), QSize(1920, 1080));
    QVERIFY(one.pixelColor(0, 500).green() > 250 && one.pixelColor(0, 500).red() < 5);
    QVERIFY(one.pixelColor(1919, 500).blue() > 250 && one.pixelColor(1919, 500).green() < 5);
    QVERIFY(qAbs(one.pixelColor(955, 500).red() - 128) < 3);

    withText<TavikCheckBox>(window, "Over the picture"_s)->click();
    for (const char *size : {"Full HD", "Phone"}) // away from the batch, which leaves the square
        withText<TavikCheckBox>(window, QString::fromLatin1(size))->click();
    withText<TavikCheckBox>(window, "Laptop"_s)->click();
    QVERIFY(exported(window, directory.filePath("all.png"_s)).contains("2 pictures"_s));
    for (const QSize &size : {QSize(1080, 1080), QSize(1366, 768)}) {
        const QImage picture(directory.filePath("all-%1x%2.png"_s.arg(size.width()).arg(size.height())));
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.pixelColor(9, 9), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(size.width() - 9, 9), QColor(Qt::blue));
        Poster *poster = window.poster();
        const QImage painted = PosterPainter::picture(poster->settings(), poster->photograph(), size);
        QCOMPARE(picture, painted.convertToFormat(picture.format()));
    }
}

void TestPoster::gradientAsText()
{
    PosterSettings settings;
    settings.opacity = 50;
    settings.startColor = Qt::red;
    settings.endColor = QColor(0, 0, 255, 0);
    QCOMPARE(GradientText::css(settings),
             "linear-gradient(30deg, rgba(255, 0, 0, 0.502) 5%, rgba(0, 0, 255, 0) 80%)"_s);
}

void TestPoster::onePopupForEveryColour()
{
    PosterWindow window;
    window.show();
    const PosterSettings before = window.poster()->settings();
    auto *popup = window.findChild<TavikColorPopup *>();
    auto *bar = window.findChild<TavikGradientBar *>();
    auto *ground = window.findChild<TavikColorButton *>();

    QTest::mouseClick(ground, Qt::LeftButton);
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->currentColor().rgba(), before.ground.rgba());
    for (int i = 0; i < 2; ++i) // the second changes nothing
        Q_EMIT popup->colorChanged(QColor(Qt::yellow).toHsv());
    QCOMPARE(ground->currentColor(), QColor(Qt::yellow)); // in eight bits a channel
    Q_EMIT popup->colorChanged(QColor());                 // while a hexadecimal value is typed
    QCOMPARE(window.poster()->settings().ground, QColor(Qt::yellow));

    QTest::mouseClick(bar, Qt::LeftButton, {}, {bar->width() - bar->height(), bar->height() / 2});
    Q_EMIT popup->colorChanged(Qt::cyan);
    const PosterSettings after = window.poster()->settings();
    QCOMPARE(after.endColor, QColor(Qt::cyan));
    QCOMPARE(after.startColor, before.startColor);
    QCOMPARE(after.ground, QColor(Qt::yellow));
}

void TestPoster::aDragIsOneUndo()
{
    PosterWindow window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QUndoStack *stack = window.poster()->undoStack();
    auto *slider = window.findChild<TavikSlider *>();
    const auto drag = [&](int from, int to) {
        const int y = slider->height() / 2;
        const auto place = [&](int x) { return slider->mapTo(&window, QPoint(x, y)); };
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, place(from));
        for (int x = from; x != to; x += to > from ? 1 : -1)
            QTest::mouseMove(window.windowHandle(), place(x));
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, place(to));
    };
    drag(slider->width() - 11, 100);
    const int opacity = window.poster()->settings().opacity;
    QVERIFY(opacity > 30 && opacity < 70);
    drag(100, 60);
    QVERIFY(window.poster()->settings().opacity < opacity);
    QCOMPARE(stack->count(), 2);

    withText<TavikButton>(window, "Undo"_s)->click();
    QCOMPARE(slider->value(), opacity);
    withText<TavikButton>(window, "Undo"_s)->click();
    QCOMPARE(slider->value(), 100);
    QVERIFY(!window.isWindowModified());
    withText<TavikButton>(window, "Redo"_s)->click();
    QCOMPARE(slider->value(), opacity);
    // By keys, each visit of a control is one.
    const int count = stack->count();
    QTest::keyClick(slider, Qt::Key_Left);
    QTest::keyClick(slider, Qt::Key_Left);
    window.findChild<TavikDial *>()->setFocus();
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(stack->count(), count + 1);
}

void TestPoster::settingsAreSavedAndOpened()
{
    const QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir("inner"_s));
    const QString file = directory.filePath("poster.json"_s);
    PosterWindow first;
    first.addPhotographs({writePhotograph(directory)});
    first.poster()->edit("all"_s, [](PosterSettings &s) {
        s.hasGradient = s.isBold = false;
        s.ground = QColor(1, 2, 3, 4);
        s.angle = 359;
        s.caption = "\"Grüße\"\n"_s;
        s.family = "Serif"_s;
        s.captionSize = 7.25;
        s.batch = QStringList{"a4"_s};
    });
    QVERIFY(first.isWindowModified() && first.saveSettings(file));
    QVERIFY(!first.isWindowModified());

    PosterWindow second;
    second.openSettings(file);
    QCOMPARE(second.message(), QString());
    QVERIFY(second.poster()->settings() == first.poster()->settings());
    QCOMPARE(second.findChild<TavikImageList *>()->count(), Photograph::ownNames().size() + 1);
    second.poster()->undoStack()->undo(); // even opening is no loss
    QVERIFY(second.poster()->settings() == PosterSettings());
    QVERIFY(!second.windowTitle().contains("poster.json"_s)); // it isn't what that file holds
    QVERIFY(exported(first, directory.filePath("nowhere/p.png"_s)).contains("nowhere"_s));
    QVERIFY(!first.exporter()->isBusy());
    QVERIFY(!first.saveSettings(directory.filePath("nowhere/poster.json"_s)));
    QVERIFY(first.message().contains("nowhere"_s));
}

void TestPoster::brokenSettings()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("poster.json"_s);
    PosterSettings none;
    QVERIFY(SettingsFile(path).read(none).contains(path)); // it isn't there yet
    QVERIFY(SettingsFile(path).write(none).isEmpty());
    QFile written(path);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray sound = written.readAll();
    const auto with = [&](const char *field, const char *value) {
        const QString name = QString::fromLatin1(field);
        const QRegularExpression line("\"%1\": [^\n,]+"_s.arg(name));
        return QString::fromUtf8(sound)
            .replace(line, "\"%1\": %2"_s.arg(name, QString::fromLatin1(value)))
            .toUtf8();
    };
    const std::pair<QByteArray, const char *> rows[] = {
        {sound.left(sound.size() / 2), "not JSON"},
        {"{}", "missing"},
        {with("angle", "360"), "\"gradient.angle\" must be from 0 to 359, and is 360"},
        {with("start-color", "\"green\""), "must be a colour"},
        {with("row", "\"upper\""), "must be one of top, middle, bottom"},
    };
    for (const auto &[content, reason] : rows) {
        writeFile(path, content);
        PosterSettings mine;
        mine.caption = "Mine"_s;
        const PosterSettings before = mine;
        const QString fault = SettingsFile(path).read(mine);
        QVERIFY2(fault.contains(path) && fault.contains(QLatin1String(reason)), qPrintable(fault));
        QVERIFY(mine == before);
    }
}

void TestPoster::aBrokenFileLosesNothing()
{
    const QTemporaryDir directory;
    const QString settings = directory.filePath("poster.json"_s);
    const QString photograph = directory.filePath("broken.png"_s);
    const QString good = writePhotograph(directory);
    writeFile(settings, "{");
    writeFile(photograph, "no picture");
    PosterWindow window;
    window.addPhotographs({good, photograph});
    QVERIFY(window.message().contains("broken.png"_s));
    const QString pipe = directory.filePath("pipe"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    window.addPhotographs({pipe});
    QVERIFY(window.message().contains("pipe"_s));
    window.openSettings(pipe);
    QVERIFY(window.message().contains("pipe"_s));
    QVERIFY(QFile::rename(pipe, pipe + ".png"_s)); // to which the toolkit completes the name
    window.addPhotographs({pipe});
    QVERIFY(window.message().contains("pipe"_s));
    QCOMPARE(window.poster()->settings().photograph, good);
    window.openSettings(settings);
    QVERIFY(window.message().contains("poster.json"_s));
    QCOMPARE(window.poster()->settings().photograph, good);
    QCOMPARE(window.poster()->undoStack()->count(), 1);

    // What has lost its photograph opens without it, and says so.
    PosterSettings orphan;
    orphan.caption = "Orphan"_s;
    orphan.photograph = directory.filePath("gone.png"_s);
    QCOMPARE(SettingsFile(settings).write(orphan), QString());
    window.openSettings(settings);
    QVERIFY(window.message().contains("gone.png"_s));
    QCOMPARE(window.poster()->settings().caption, orphan.caption);
    QCOMPARE(window.poster()->settings().photograph, orphan.photograph);
}

void TestPoster::cancelledBatch()
{
    const QTemporaryDir directory;
    const QString old = directory.filePath("p-1080x1080.png"_s);
    writeFile(old, "old");
    PosterWindow window;
    withText<TavikRadioButton>(window, "Several sizes:"_s)->click();
    auto *cancel = withText<TavikButton>(window, "Cancel"_s);
    connect(window.exporter(), &Exporter::progressed, cancel, [=](int done) {
        if (done == 1)
            cancel->click();
    });
    QVERIFY(exported(window, directory.filePath("p.png"_s)).contains("1 of 3"_s));
    QVERIFY(!window.exporter()->isBusy());
    QTest::qWait(1); // nothing follows
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList({"p-1080x1080.png"_s, "p-1920x1080.png"_s}));
    QVERIFY(!QImage(directory.filePath("p-1920x1080.png"_s)).isNull());
    QCOMPARE(QFileInfo(old).size(), 3);
}

void TestPoster::nothingIsClipped()
{
    for (const int rem : Support::rems) {
        LenConverter::m_rem = rem;
        PosterWindow window;
        for (TavikExpandable *panel : window.findChildren<TavikExpandable *>())
            panel->expand();
        window.resize(PosterWindow::goodSize());
        QSignalSpy settled(&window, &PosterWindow::settled);
        window.show();
        QVERIFY(settled.wait());
        window.grab();
        QString problem;
        const int seen = Support::lookForFaults(window, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QVERIFY(seen > 40);
        auto *list = window.findChild<TavikImageList *>();
        QCOMPARE(list->visualItemRect(list->item(2)).top(), list->visualItemRect(list->item(0)).top());
        QVERIFY(!list->verticalScrollBar()->isVisible());
    }
}

void TestPoster::commandLine()
{
    const QTemporaryDir directory;
    const auto run = [&](const QStringList &arguments) {
        QProcess poster;
        poster.start(QStringLiteral(TAVIK_POSTER), arguments);
        poster.waitForFinished();
        return poster.exitStatus() == QProcess::NormalExit ? poster.exitCode() : -1;
    };
    const QString file = directory.filePath("window.png"_s);
    QCOMPARE(run({"--rem"_s, "18"_s, "--picture"_s, file}), 0);
    QCOMPARE(QImage(file).size(), QSize(118 * 18, 68 * 18));
    QCOMPARE(run({"--picture"_s, directory.filePath("nowhere/window.png"_s)}), 1);
    QCOMPARE(run({"--rem"_s, "11"_s, "--picture"_s, file}), 2);
}

TAVIK_TEST_MAIN(TestPoster)
#include "tst_poster.moc"
