#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikButtonGroup>

#include <QBoxLayout>
#include <QPointer>
#include <QRadioButton>

#include <memory>

class TestTavikButtonGroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void lengthsInRemAndPixels();
    void directions();
    void buttonsOfEachKind();
    void seams_data();
    void seams();
    void clicks_data();
    void clicks();
    void stateWhenNothingIsReported();
    void setCheckedId();
    void ownership();
    void paintsItsBackground();
};

using Ids = QVector<int>;

namespace {

const QBoxLayout *boxOf(const TavikButtonGroup &group)
{
    return qobject_cast<const QBoxLayout *>(group.layout());
}

QAbstractButton *button(const TavikButtonGroup &group, int index)
{
    return qobject_cast<QAbstractButton *>(group.layout()->itemAt(index)->widget());
}

} // namespace

void TestTavikButtonGroup::lengthsInRemAndPixels()
{
    LenConverter::m_rem = 18;
    TavikButtonGroup rem(Horizontal, 1.5, QSizeF(4, 2), TavikButtonGroup::Exclusive, 0.5);
    QCOMPARE(rem.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(rem.layout()->spacing(), 9);
    const TavikButton *scaled = rem.addTextButton(QStringLiteral("text"));
    QCOMPARE(scaled->minimumSize(), QSize(72, 36));
    QCOMPARE(scaled->maximumSize(), QSize(72, 36));
    QVERIFY(scaled->styleSheet().contains(QLatin1String(";font-size: 27px;")));

    TavikButtonGroup pixels(Horizontal, 15, QSize(40, 20), TavikButtonGroup::Exclusive, 5);
    QVERIFY(!pixels.layout()->contentsMargins().isNull()); // the toolkit's own
    QCOMPARE(pixels.layout()->spacing(), 5);
    const TavikButton *fixed = pixels.addTextButton(QStringLiteral("text"));
    QCOMPARE(fixed->minimumSize(), QSize(40, 20));
    QVERIFY(fixed->styleSheet().contains(QLatin1String(";font-size: 15px;")));
    pixels.setRemSpacing(2.0);
    QCOMPARE(pixels.layout()->spacing(), 36);

    TavikButtonGroup halfSized(Horizontal, 2.0, QSizeF(0, 3));
    QCOMPARE(halfSized.addTextButton(QStringLiteral("text"))->minimumSize(), QSize(0, 0));
}

void TestTavikButtonGroup::directions()
{
    QCOMPARE(boxOf(TavikButtonGroup(Horizontal))->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(boxOf(TavikButtonGroup(Direction(9)))->direction(), QBoxLayout::TopToBottom);
    const TavikButtonGroup group;
    QCOMPARE(boxOf(group)->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(boxOf(group)->spacing(), 0);
    QCOMPARE(static_cast<const QLayoutItem *>(boxOf(group))->alignment(), Qt::AlignCenter);
}

void TestTavikButtonGroup::buttonsOfEachKind()
{
    const QString path = QStringLiteral(":/Color/images/color");
    TavikButtonGroup group(Horizontal, 2.0, QSizeF(6, 3));
    const QRadioButton *radio = group.addRadioButton(QStringLiteral("radio"));
    QVERIFY(radio->minimumSize().isEmpty());
    group.addTextButton(QStringLiteral("text"));
    const TavikButton *picture = group.addIconButton(path);
    QCOMPARE(picture->minimumSize(), QSize(72, 36));
    QCOMPARE(picture->styleSheet(), Support::expectedSheet(QStringLiteral("button-toggle-12")));
    QCOMPARE(picture->iconSize(), QPushButton().iconSize()); // none was set: the toolkit's own

    LenConverter::m_rem = 24;
    group.setIconRemSz(QSizeF(2, 1.5));
    QCOMPARE(group.iconRemSz(), QSizeF(48, 36)); // pixels
    const TavikButton *larger = group.addIconButton(QIcon());
    QCOMPARE(larger->iconSize(), QSize(48, 36));
    group.setIconPxSz(QSize(16, 8)); // design pixels
    QCOMPARE(group.addIconButton(path)->iconSize(), QSize(32, 16));
    QCOMPARE(larger->iconSize(), QSize(48, 36));

    for (int id = 0; id < 5; ++id) {
        group.setCheckedId(id);
        QCOMPARE(group.checkedId(), id);
        QVERIFY(button(group, id)->isChecked());
    }
}

void TestTavikButtonGroup::seams_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("radioFirst");
    QTest::addColumn<double>("spacing");
    QTest::addColumn<bool>("secondIsJoined");
    QTest::newRow("row") << int(Horizontal) << false << 0.0 << true;
    QTest::newRow("column too") << int(Vertical) << false << 0.0 << true;
    QTest::newRow("after another kind") << int(Horizontal) << true << 0.0 << true;
    QTest::newRow("apart") << int(Horizontal) << false << 0.5 << false;
}

void TestTavikButtonGroup::seams()
{
    QFETCH(int, direction);
    QFETCH(bool, radioFirst);
    QFETCH(double, spacing);
    QFETCH(bool, secondIsJoined);
    const QString rule = QStringLiteral(
        "TavikButton,TavikButton:checked,TavikButton:unchecked,TavikButton:hover,TavikButton:hover:checked,"
        "TavikButton:hover:unchecked,TavikButton:pressed,TavikButton:pressed:checked,"
        "TavikButton:pressed:unchecked {border-left-width: 0px;}");
    TavikButtonGroup group(Direction(direction), 1.167, QSizeF(), TavikButtonGroup::Exclusive, spacing);
    if (radioFirst)
        group.addRadioButton(QStringLiteral("first"));
    else
        QVERIFY(!group.addTextButton(QStringLiteral("first"))->styleSheet().endsWith(rule));

    TavikButton *second = group.addTextButton(QStringLiteral("second"));
    const QString own = Support::expectedSheet(QStringLiteral("button-toggle-12"));
    QCOMPARE(second->styleSheet(), secondIsJoined ? own + rule : own);
    group.setPxSpacing(secondIsJoined ? 9 : 0); // comes too late for the buttons that are there
    QCOMPARE(second->styleSheet().endsWith(rule), secondIsJoined);
    second->updateStyleSheet();
    QCOMPARE(second->styleSheet(), own);
}

void TestTavikButtonGroup::clicks_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("uncheckable");
    QTest::addColumn<Ids>("clicked");
    QTest::addColumn<Ids>("emitted");
    QTest::addColumn<int>("checked");
    const int exclusive = TavikButtonGroup::Exclusive;
    const int nonExclusive = TavikButtonGroup::NonExclusive;
    QTest::newRow("exclusive") << exclusive << false << Ids{1, 1, 2} << Ids{1, 1, 2} << 2;
    QTest::newRow("uncheckable: first clicks are silent") << exclusive << true << Ids{1, 2} << Ids{} << 2;
    QTest::newRow("uncheckable: twice") << exclusive << true << Ids{2, 2} << Ids{-1} << -1;
    QTest::newRow("uncheckable: thrice") << exclusive << true << Ids{2, 2, 2} << Ids{-1} << 2;
    QTest::newRow("each alone") << nonExclusive << false << Ids{0, 1, 0} << Ids{0, 1, 0} << 1;
    QTest::newRow("each alone, uncheckable") << nonExclusive << true << Ids{1, 1} << Ids{1, 1} << -1;
    QTest::newRow("outside") << 7 << true << Ids{1, 1} << Ids{1, 1} << 1;
}

void TestTavikButtonGroup::clicks()
{
    QFETCH(int, mode);
    QFETCH(bool, uncheckable);
    QFETCH(Ids, clicked);
    TavikButtonGroup group(Horizontal, 1.167, QSizeF(), TavikButtonGroup::Mode(mode));
    for (int i = 0; i < 3; ++i)
        group.addTextButton(QString::number(i));
    group.setIsUncheckable(uncheckable);

    Ids emitted;
    connect(&group, &TavikButtonGroup::buttonClicked, this, [&](int id) { emitted.append(id); });
    for (int id : clicked)
        QTest::mouseClick(button(group, id), Qt::LeftButton);
    QTEST(emitted, "emitted");
    QTEST(group.checkedId(), "checked");
    QCOMPARE(group.isNoButtonChecked(), group.checkedId() == -1);
}

void TestTavikButtonGroup::stateWhenNothingIsReported()
{
    TavikButtonGroup group(Horizontal);
    QVERIFY(group.isNoButtonChecked());
    group.addTextButton(QStringLiteral("0"));
    group.addTextButton(QStringLiteral("1"));
    group.setIsUncheckable(true);
    bool seen = false;
    connect(&group, &TavikButtonGroup::buttonClicked, this, [&] {
        // All is restored before -1 is told: nothing is checked, and clicks exclude each other again.
        seen = group.isNoButtonChecked();
        button(group, 0)->setChecked(true);
        button(group, 1)->setChecked(true);
        seen = seen && !button(group, 0)->isChecked();
    });
    button(group, 1)->click();
    button(group, 1)->click();
    QVERIFY(seen);
}

void TestTavikButtonGroup::setCheckedId()
{
    TavikButtonGroup group(Horizontal);
    for (int i = 0; i < 3; ++i)
        group.addTextButton(QString::number(i));
    button(group, 2)->click(); // not remembered: unchecking is off
    group.setIsUncheckable(true);
    const QSignalSpy spy(&group, &TavikButtonGroup::buttonClicked);
    group.setCheckedId(0);
    group.setCheckedId(2);
    group.setCheckedId(99);
    group.setCheckedId(-1);
    QCOMPARE(group.checkedId(), 2);
    button(group, 2)->click(); // only remembered now
    QCOMPARE(group.checkedId(), 2);
    QCOMPARE(spy.count(), 0);
    button(group, 2)->click();
    QCOMPARE(group.checkedId(), -1);
    QCOMPARE(spy.count(), 1);
}

void TestTavikButtonGroup::ownership()
{
    auto group = std::make_unique<TavikButtonGroup>();
    const QPointer<TavikButton> text = group->addTextButton(QStringLiteral("text"));
    QCOMPARE(text->parentWidget(), group.get());
    delete group->addRadioButton(QStringLiteral("radio"));
    QVERIFY(group->isNoButtonChecked());
    group->setCheckedId(1);
    group.reset();
    QVERIFY(!text);
}

void TestTavikButtonGroup::paintsItsBackground()
{
    TavikButtonGroup group(Horizontal);
    group.setStyleSheet(QStringLiteral("TavikButtonGroup{border: 4px solid #123456;}"));
    group.resize(40, 40);
    QCOMPARE(Support::picture(&group).pixelColor(1, 20), QColor("#123456"));
}

TAVIK_TEST_MAIN(TestTavikButtonGroup)
#include "tst_tavikbuttongroup.moc"
