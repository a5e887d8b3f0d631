#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikLabel>

class TestTavikLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sheets();
    void restyles();
    void sizes();
};

void TestTavikLabel::sheets()
{
    const QString sheet = Support::expectedSheet(QStringLiteral("label-default-12"));
    for (const int type : {int(TavikLabel::Default), 7, -1})
        QCOMPARE(TavikLabel(tr("text"), TavikLabel::Type(type)).styleSheet(), sheet);
    QCOMPARE(TavikLabel(tr("text")).styleSheet(), sheet);
    LenConverter::m_rem = 30;
    QCOMPARE(TavikLabel(tr("text"), TavikLabel::Assist).styleSheet(),
             QString(sheet)
                 .replace(QLatin1String("#404040"), QLatin1String("#909090"))
                 .replace(QLatin1String("14px"), QLatin1String("30px")));
}

void TestTavikLabel::restyles()
{
    TavikLabel label;
    const QString before = label.styleSheet();
    label.initStyleProperties(TavikLabel::Assist);
    QCOMPARE(label.styleSheet(), before); // waits for the next sheet
    label.setFontRemSz(1.0);
    QVERIFY(label.styleSheet().contains(QLatin1String(";font-size: 12px;")));
    label.setColor(QStringLiteral("#123456"));
    QVERIFY(label.styleSheet().startsWith(QLatin1String("TavikLabel{color: #123456;font-size: 12px;")));
}

void TestTavikLabel::sizes()
{
    TavikLabel label;
    label.setRemSize(10.04, 2.5);
    QCOMPARE(label.minimumSize(), QSize(120, 30));
    QCOMPARE(label.maximumSize(), QSize(120, 30));
}

TAVIK_TEST_MAIN(TestTavikLabel)
#include "tst_taviklabel.moc"
