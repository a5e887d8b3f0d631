#include <QtTest>

#include <QAccessible>
#include <QFocusFrame>
#include <QPushButton>
#include <QVBoxLayout>

#include <dlfcn.h>

/// The library as a plug-in's dependency: loaded and unloaded while the application runs. This program
/// is not linked to it.
class TestUnload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothing();

private:
    static void useKeys(void *library, QWidget *root);
    static void readPalette(void *library);

    /// A function of the library, by the name that the linker knows.
    template <class Function>
    static Function *function(void *library, const char *name)
    {
        return reinterpret_cast<Function *>(dlsym(library, name));
    }
};

/// Keyboard access in a window of the application's, with the mark shown at a button.
void TestUnload::useKeys(void *library, QWidget *root)
{
    auto *install = function<void(QWidget *)>(library, "_ZN19TavikKeyboardAccess7installEP7QWidget");
    QVERIFY2(install, dlerror());
    install(root);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(root->findChild<QFocusFrame *>());
}

/// A palette, with the cells that screen readers know of.
void TestUnload::readPalette(void *library)
{
    auto *construct = function<void(void *, QWidget *)>(library, "_ZN14TavikColorWellC1EP7QWidget");
    QVERIFY2(construct, dlerror());
    alignas(std::max_align_t) char memory[1000]; // more than it takes
    construct(memory, nullptr);
    auto *palette = reinterpret_cast<QWidget *>(memory);
    QCOMPARE(QAccessible::queryAccessibleInterface(palette)->childCount(), 16);
    palette->~QWidget();
}

void TestUnload::leavesNothing()
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto *first = new QPushButton(&window);
    column->addWidget(first);
    column->addWidget(new QPushButton(&window));
    first->setFocus();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    const QString picture = QStringLiteral(":/Color/images/plus.svg");
    for (int round = 0; round < 2; ++round) {
        QVERIFY(!QFile::exists(picture));
        void *library = dlopen(TAVIK_LIBRARY, RTLD_NOW);
        QVERIFY2(library, dlerror());
        QVERIFY(QFile::exists(picture));
        useKeys(library, &window);
        readPalette(library);
        QCOMPARE(dlclose(library), 0);
        QVERIFY2(!dlopen(TAVIK_LIBRARY, RTLD_NOW | RTLD_NOLOAD), "The library stays loaded");

        // Whatever it has left behind would be called now.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QWidget fresh(&window);
        QCOMPARE(QAccessible::queryAccessibleInterface(&fresh)->childCount(), 0);
        QVERIFY(!window.findChild<QFocusFrame *>());
    }
    QVERIFY(!QFile::exists(picture));
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    TestUnload test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_unload.moc"
