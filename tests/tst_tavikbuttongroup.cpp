#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikButtonGroup>

#include <QBoxLayout>
#include <QRadioButton>

class TestTavikButtonGroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void lengthsInRemAndPixels();
    void directions();
    void buttonsOfEachKind();
    void seams();
    void clicks();
    void stateWhenNothingIsReported();
    void paintsItsBackground();
    void setCheckedId();
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

void TestTavikButtonGroup::seams()
{
    const QString own = Support::expectedSheet(QStringLiteral("button-toggle-12"));
    const QString joined =
        own + QStringLiteral("TavikButton,TavikButton:checked,TavikButton:unchecked,TavikButton:hover,"
                             "TavikButton:hover:checked,"
                             "TavikButton:hover:unchecked,TavikButton:pressed,TavikButton:pressed:checked,"
                             "TavikButton:pressed:unchecked {border-left-width: 0px;}");
    TavikButtonGroup column(Vertical); // as in a row
    QCOMPARE(column.addTextButton(QStringLiteral("first"))->styleSheet(), own);
    TavikButton *second = column.addTextButton(QStringLiteral("second"));
    QCOMPARE(second->styleSheet(), joined);
    column.setPxSpacing(9); // comes too late for the buttons that are there
    QCOMPARE(second->styleSheet(), joined);
    QCOMPARE(column.addTextButton(QStringLiteral("third"))->styleSheet(), own);
    second->updateStyleSheet();
    QCOMPARE(second->styleSheet(), own);

    TavikButtonGroup mixed(Horizontal);
    mixed.addRadioButton(QStringLiteral("first"));
    QCOMPARE(mixed.addTextButton(QStringLiteral("second"))->styleSheet(), joined);
}

void TestTavikButtonGroup::clicks()
{
    const auto exclusive = TavikButtonGroup::Exclusive;
    const auto nonExclusive = TavikButtonGroup::NonExclusive;
    const struct
    {
        TavikButtonGroup::Mode mode;
        bool isUncheckable;
        Ids clicked;
        Ids emitted;
        int checked;
    } rows[] = {
        {exclusive, false, {1, 1, 2}, {1, 1, 2}, 2},
        {exclusive, true, {1, 2}, {}, 2}, // first clicks are silent
        {exclusive, true, {2, 2}, {-1}, -1},
        {exclusive, true, {2, 2, 2}, {-1}, 2},
        {nonExclusive, false, {0, 1, 0}, {0, 1, 0}, 1},
        {nonExclusive, true, {1, 1}, {1, 1}, -1},
        {TavikButtonGroup::Mode(7), true, {1, 1}, {1, 1}, 1},
    };
    for (const auto &row : rows) {
        TavikButtonGroup group(Horizontal, 1.167, QSizeF(), row.mode);
        for (int i = 0; i < 3; ++i)
            group.addTextButton(QString::number(i));
        group.setIsUncheckable(row.isUncheckable);
        Ids emitted;
        connect(&group, &TavikButtonGroup::buttonClicked, this, [&](int id) { emitted.append(id); });
        for (const int id : row.clicked)
            QTest::mouseClick(button(group, id), Qt::LeftButton);
        QCOMPARE(emitted, row.emitted);
        QCOMPARE(group.checkedId(), row.checked);
        QCOMPARE(group.isNoButtonChecked(), row.checked == -1);
    }
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

void TestTavikButtonGroup::paintsItsBackground()
{
    TavikButtonGroup group(Horizontal);
    group.setStyleSheet(QStringLiteral("TavikButtonGroup{border: 4px solid #123456;}"));
    group.resize(40, 40);
    QCOMPARE(Support::picture(&group).pixelColor(1, 20), QColor("#123456"));
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
    QCOMPARE(group.checkedId(), 2);
    button(group, 2)->click(); // only remembered now
    QCOMPARE(group.checkedId(), 2);
    QCOMPARE(spy.count(), 0);
    button(group, 2)->click();
    QCOMPARE(group.checkedId(), -1);
    QCOMPARE(spy.count(), 1);
}

TAVIK_TEST_MAIN(TestTavikButtonGroup)
#include "tst_tavikbuttongroup.moc"
