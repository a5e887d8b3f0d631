#include <QtTest>

#include <dlfcn.h>

/// The library as a plug-in's dependency: loaded and unloaded while the application runs. This program
/// is not linked to it.
class TestUnload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturesComeAndGo();
};

void TestUnload::picturesComeAndGo()
{
    const QString picture = QStringLiteral(":/Color/images/plus.svg");
    for (int round = 0; round < 2; ++round) {
        QVERIFY(!QFile::exists(picture));
        void *library = dlopen(TAVIK_LIBRARY, RTLD_NOW);
        QVERIFY2(library, dlerror());
        QVERIFY(QFile::exists(picture));
        QCOMPARE(dlclose(library), 0);
        QVERIFY2(!dlopen(TAVIK_LIBRARY, RTLD_NOW | RTLD_NOLOAD), "The library stays loaded");
    }
    QVERIFY(!QFile::exists(picture));
}

QTEST_GUILESS_MAIN(TestUnload)
#include "tst_unload.moc"
