#include "support.h"

#include <QProcess>
#include <QTemporaryDir>

/// The storm finds nothing in the library, and finds what is planted in copies of it.
class TestStorm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameSeedSameSteps();
    void findsPlantedFaults_data();
    void findsPlantedFaults();
    void findsNothing();

private:
    struct Run
    {
        int exitCode = -1;
        QByteArray errors;
        QByteArrayList steps; // the log's lines
    };
    Run run(const char *program, const QString &options = {}) const;

    QTemporaryDir m_folder;
};

TestStorm::Run TestStorm::run(const char *program, const QString &options) const
{
    const QString log = m_folder.filePath(QStringLiteral("storm.log"));
    QProcess storm;
    storm.start(QLatin1String(program), QStringList{QStringLiteral("--log"), log} +
                                            options.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    if (!storm.waitForFinished(5 * 60 * 1000))
        return {};
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return {storm.exitCode(), storm.readAllStandardError(), file.readAll().trimmed().split('\n')};
}

void TestStorm::sameSeedSameSteps()
{
    const QString options = QStringLiteral("--seed 7 --count 600");
    const Run first = run(TAVIK_STORM, options);
    QCOMPARE(first.exitCode, 0);
    QCOMPARE(first.steps.size(), 600);
    // A later start gives the same steps from there on.
    QCOMPARE(run(TAVIK_STORM, options + QStringLiteral(" --from 500")).steps, first.steps.mid(500));
    QVERIFY(run(TAVIK_STORM, QStringLiteral("--seed 8 --count 600")).steps != first.steps);
}

void TestStorm::findsPlantedFaults_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<QString>("finding");
    QTest::newRow("a reference that a receiver invalidates")
        << QByteArray(TAVIK_STORM_WELL)
        << "AddressSanitizer: heap-use-after-free|runtime error: load of value";
    QTest::newRow("a window that nobody deletes")
        << QByteArray(TAVIK_STORM_POPUP) << "Finding: A sampler is left over";
}

void TestStorm::findsPlantedFaults()
{
    QFETCH(QByteArray, program);
    QFETCH(QString, finding);
    const Run faulty = run(program.constData());
    QVERIFY(faulty.exitCode > 0);
    QVERIFY2(QRegularExpression(finding).match(QString::fromUtf8(faulty.errors)).hasMatch(),
             faulty.errors.constData());
    QVERIFY(!faulty.steps.isEmpty() && faulty.steps.size() <= 20000);
    const QRegularExpression step(QStringLiteral("^\\d+ [a-z][A-Za-z]+ "));
    QVERIFY(step.match(QString::fromUtf8(faulty.steps.last())).hasMatch());
}

void TestStorm::findsNothing()
{
    const Run storm = run(TAVIK_STORM);
    const QByteArray finding = storm.errors + "\nin the step " + storm.steps.value(storm.steps.size() - 1);
    QVERIFY2(storm.exitCode == 0, finding.constData());
    QCOMPARE(storm.steps.size(), 20000);
}

QTEST_GUILESS_MAIN(TestStorm)
#include "tst_storm.moc"
