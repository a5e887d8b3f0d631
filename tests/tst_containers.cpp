#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikContainer>
#include <Tavik/TavikExpandable>
#include <Tavik/TavikImageList>
#include <Tavik/TavikLabel>
#include <Tavik/TavikScrollArea>

#include <QBoxLayout>
#include <QPainter>
#include <QPropertyAnimation>
#include <QScrollBar>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <memory>

class TestContainers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void container();
    void containerLook();
    void expandableParts();
    void expandableToggles();
    void expandableReversesWhileRunning();
    void expandableOpenHeight();
    void expandablePresses();
    void expandableDeletedWhileRunning();
    void scrollArea();
    void imageList();
    void imageListImages();
    void imageListRefuses();
};

namespace {

QBoxLayout *boxOf(const TavikContainer &box)
{
    return qobject_cast<QBoxLayout *>(box.layout());
}

QPropertyAnimation *animationOf(const TavikExpandable &panel)
{
    return panel.findChild<QPropertyAnimation *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Lets a running animation come to its end at once.
void finish(const TavikExpandable &panel)
{
    QPropertyAnimation *animation = animationOf(panel);
    animation->setCurrentTime(animation->direction() == QAbstractAnimation::Forward ? animation->duration()
                                                                                    : 0);
}

QWidget *titleBar(const TavikExpandable &panel)
{
    return panel.layout()->itemAt(0)->widget();
}

QWidget *content(const TavikExpandable &panel)
{
    return panel.layout()->itemAt(1)->widget();
}

} // namespace

void TestContainers::container()
{
    LenConverter::m_rem = 18;
    QCOMPARE(boxOf(TavikContainer(Direction(-7)))->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(boxOf(TavikContainer(Vertical))->direction(), QBoxLayout::TopToBottom);
    TavikContainer box(Horizontal);
    const QBoxLayout *layout = boxOf(box);
    QCOMPARE(layout->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(static_cast<const QLayoutItem *>(layout)->alignment(), Qt::AlignCenter);
    box.setSpacing(1.5);
    QCOMPARE(layout->spacing(), 27);
    box.addWidget(new QWidget);
    box.addSpacing(12);
    QCOMPARE(layout->itemAt(1)->sizeHint().width(), 12);
    box.addStretch();
    QCOMPARE(layout->stretch(2), 1);
    box.addSpacerItem(nullptr);
    QCOMPARE(layout->count(), 3);
    box.setRemSize(QSizeF(10, 5));
    QCOMPARE(box.size(), QSize(180, 90));
    box.setContentMargin(12);
    QCOMPARE(layout->contentsMargins(), QMargins(12, 12, 12, 12));
    box.removeMargins();
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
}

void TestContainers::containerLook()
{
    TavikContainer outer(Vertical, QStringLiteral("#112233"), QStringLiteral("3"),
                         QStringLiteral("#445566"));
    outer.removeMargins();
    auto *inner = new TavikContainer(Vertical, QStringLiteral("#778899"), QStringLiteral("0"),
                                     QStringLiteral("#ffffff"));
    inner->setFixedSize(20, 20);
    outer.addWidget(inner);
    outer.resize(100, 100);
    outer.show();
    const QImage picture = Support::picture(&outer);
    QCOMPARE(picture.pixelColor(1, 50), QColor("#445566"));
    QCOMPARE(picture.pixelColor(10, 10), QColor("#112233"));
    QCOMPARE(picture.pixelColor(50, 50), QColor("#778899")); // in the middle, in its own colour
}

void TestContainers::expandableParts()
{
    LenConverter::m_rem = 18;
    TavikExpandable panel(QString(), 5.0, false);
    QCOMPARE(panel.layout()->spacing(), 0);
    QCOMPARE(panel.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(animationOf(panel)->duration(), 500);
    QCOMPARE(animationOf(panel)->easingCurve().type(), QEasingCurve::OutBack);

    const QWidget *bar = titleBar(panel);
    QCOMPARE(bar->minimumHeight(), 42);
    QCOMPARE(bar->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(bar->layout()->itemAt(0)->sizeHint(), QSize(24, 0));
    QCOMPARE(bar->layout()->itemAt(2)->expandingDirections(), Qt::Horizontal);
    QCOMPARE(panel.findChild<TavikButton *>()->size(), QSize(42, 42));
    QCOMPARE(bar->layout()->itemAt(4)->sizeHint(), QSize(16, 0));
    panel.setTitle(QStringLiteral("Other"));
    QCOMPARE(panel.findChild<TavikLabel *>()->text(), QStringLiteral("Other"));

    const QLayout *inner = content(panel)->layout()->itemAt(0)->widget()->layout();
    QCOMPARE(inner->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(static_cast<const QLayoutItem *>(inner)->alignment(), Qt::AlignHCenter | Qt::AlignTop);
    panel.addWidget(new QWidget);
    QCOMPARE(inner->count(), 1);
    panel.setSpacing(0.5);
    QCOMPARE(inner->spacing(), 9);
    panel.setRemWidth(20);
    QCOMPARE(panel.maximumWidth(), 360);
}

void TestContainers::expandableToggles()
{
    TavikExpandable panel(QString(), 5.0, nullptr);
    QCOMPARE(animationOf(panel)->state(), QAbstractAnimation::Running); // a new panel runs once
    finish(panel);
    QCOMPARE(content(panel)->height(), 60);

    QSignalSpy started(&panel, &TavikExpandable::animationStarted);
    QSignalSpy finished(&panel, &TavikExpandable::animationFinished);
    auto stateAtStart = QAbstractAnimation::Running;
    connect(&panel, &TavikExpandable::animationStarted, this,
            [&] { stateAtStart = animationOf(panel)->state(); });
    auto *button = panel.findChild<TavikButton *>();
    for (int round = 1; round <= 4; ++round) {
        const bool opens = round % 2 == 0;
        button->click();
        const QIcon arrow(opens ? QStringLiteral(":/Expandable/images/expanded.svg")
                                : QStringLiteral(":/Expandable/images/unexpanded.svg"));
        QCOMPARE(button->icon().pixmap(16).toImage(), arrow.pixmap(16).toImage());
        QCOMPARE(stateAtStart, QAbstractAnimation::Stopped); // it is told before the run
        QCOMPARE(started.count(), round);
        finish(panel);
        QCOMPARE(finished.count(), round);
        QCOMPARE(panel.remExpandHeight(), opens ? 5.0 : 0.0);
        QCOMPARE(content(panel)->maximumHeight(), opens ? 60 : 0);
    }
    const QSignalSpy clicked(button, &QAbstractButton::clicked);
    panel.onclickedExpanedRequest(); // opens once more, from nothing
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(panel.remExpandHeight(), 0.0);
    finish(panel);
    QCOMPARE(panel.remExpandHeight(), 5.0);
}

void TestContainers::expandableReversesWhileRunning()
{
    TavikExpandable panel(QString(), 10.0, false);
    finish(panel);
    QSignalSpy started(&panel, &TavikExpandable::animationStarted);
    QSignalSpy finished(&panel, &TavikExpandable::animationFinished);
    panel.expand();
    animationOf(panel)->setCurrentTime(200);
    const double height = panel.remExpandHeight();
    QVERIFY(height > 0);
    panel.unexpand();
    QCOMPARE(animationOf(panel)->state(), QAbstractAnimation::Running);
    QCOMPARE(panel.remExpandHeight(), height);
    finish(panel);
    QCOMPARE(panel.remExpandHeight(), 0.0);
    QCOMPARE(started.count(), 2);
    QCOMPARE(finished.count(), 1);
}

void TestContainers::expandableOpenHeight()
{
    TavikExpandable panel(QString(), 5.0, false);
    finish(panel);
    QSignalSpy changed(&panel, &TavikExpandable::remExpandHeightChanged);
    panel.updateExpandedHeight(8.0); // closed: nothing to be seen
    QCOMPARE(changed.count(), 0);
    QCOMPARE(content(panel)->maximumHeight(), 0);
    QCOMPARE(panel.remExpandHeight(), 8.0);
    panel.expand();
    finish(panel);
    QCOMPARE(content(panel)->maximumHeight(), 96);

    changed.clear();
    panel.updateExpandedHeight(6.0); // open: at once
    QCOMPARE(changed.count(), 1);
    QCOMPARE(content(panel)->maximumHeight(), 72);
    panel.setRemExpandHeight(2.0); // only the present height
    QCOMPARE(changed.count(), 2);
    panel.expand();
    finish(panel);
    QCOMPARE(panel.remExpandHeight(), 6.0);
    panel.setRemExpandHeight(3.0);
    panel.initAnimationStates();
    panel.expand();
    QCOMPARE(animationOf(panel)->endValue().toDouble(), 3.0);

    // In the middle of a run, as in every new panel: the run goes on to where it was sent.
    TavikExpandable made(QString(), 3.0);
    made.updateExpandedHeight(10.0);
    finish(made);
    QCOMPARE(made.remExpandHeight(), 3.0);
    TavikExpandable asked(QString(), 3.0);
    asked.updateExpandedHeight(10.0);
    asked.expand();
    finish(asked);
    QCOMPARE(asked.remExpandHeight(), 10.0);
}

void TestContainers::expandablePresses()
{
    TavikExpandable panel(QStringLiteral("title"), 5.0, true);
    panel.resize(300, 100);
    panel.show();
    auto *label = panel.findChild<TavikLabel *>();
    auto *arrow = panel.findChild<TavikButton *>();
    QWidget *bar = titleBar(panel);
    const struct
    {
        QWidget *target;
        Qt::MouseButton button;
        int toggles;
    } rows[] = {{content(panel), Qt::LeftButton, 0},
                {label, Qt::LeftButton, 1},
                {label, Qt::RightButton, 1},
                {bar, Qt::LeftButton, 1},
                {arrow, Qt::LeftButton, 1}};
    for (const auto &row : rows) {
        finish(panel);
        QCoreApplication::processEvents();
        const QSignalSpy started(&panel, &TavikExpandable::animationStarted);
        const QSignalSpy clicked(arrow, &QAbstractButton::clicked);
        // The pointer stands on the title row if it stands on a part of it.
        bar->setAttribute(Qt::WA_UnderMouse, row.toggles == 1);
        QTest::mouseClick(panel.windowHandle(), row.button, {},
                          row.target->mapTo(&panel, row.target->rect().center()));
        QCOMPARE(started.count(), row.toggles);
        QCOMPARE(clicked.count(), row.toggles);
    }
}

void TestContainers::expandableDeletedWhileRunning()
{
    // One that closes before it has begun to open would call itself finished while it goes.
    auto early = std::make_unique<TavikExpandable>(QString(), 5.0, nullptr);
    early->unexpand();
    const QSignalSpy finished(early.get(), &TavikExpandable::animationFinished);
    early.reset();
    QCOMPARE(finished.count(), 0);
}

void TestContainers::scrollArea()
{
    LenConverter::m_rem = 18;
    TavikScrollArea area;
    auto *large = new QWidget;
    large->setFixedSize(3000, 3000);
    area.setWidget(large);
    area.setRemSz(10, 50.9); // in rem and in whole pixels
    QCOMPARE(area.size(), QSize(180, 50));
    area.show();
    QVERIFY(!area.horizontalScrollBar()->isVisible());
    QVERIFY(area.verticalScrollBar()->isVisible());
}

void TestContainers::imageList()
{
    TavikImageList list;
    QCOMPARE(list.selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(list.movement(), QListView::Static);
    QCOMPARE(list.resizeMode(), QListView::Adjust);
    list.setIconRemSz(2, 1);
    QCOMPARE(list.iconSize(), QSize(24, 12));
    list.setRemWidth(30);
    QCOMPARE(list.maximumWidth(), 360);
    list.addImage(QStringLiteral(":/Color/images/color.svg"));
    for (int round = 0; round < 2; ++round) {
        list.show();
        QCOMPARE(list.currentRow(), -1);
        list.setCurrentRow(0);
        list.hide();
    }
}

void TestContainers::imageListImages()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("wide.png"));
    QImage image(400, 100, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(image.rect(), QBrush(Qt::blue, Qt::Dense4Pattern));
    QVERIFY(image.save(file));

    TavikImageList list;
    list.addImage(file); // no icon size yet: the grid's own
    list.setIconRemSz(5, 5);
    list.addImage(file);
    list.addImage(QStringLiteral("/nowhere.png"));
    QCOMPARE(list.count(), 3);
    const auto icon = [&list](int row) { return list.item(row)->data(Qt::DecorationRole).value<QIcon>(); };
    const int gridSize = list.style()->pixelMetric(QStyle::PM_IconViewIconSize, nullptr, &list);
    QCOMPARE(icon(0).availableSizes().value(0), QSize(gridSize, gridSize));
    QCOMPARE(icon(1).availableSizes().value(0), QSize(60, 60)); // stretched, not fitted
    const QColor mixed = icon(1).pixmap(60, 60).toImage().pixelColor(30, 30);
    QVERIFY(mixed.red() > 60 && mixed.blue() > 60); // of red and blue points, smoothly
    QVERIFY(icon(2).isNull());
}

void TestContainers::imageListRefuses()
{
    const QTemporaryDir directory;
    const auto path = [&](const char *name) { return directory.filePath(QLatin1String(name)); };
    QImage image(16384, 4097, QImage::Format_Grayscale8); // a line more than what is read whole
    image.fill(100);
    for (const char *name : {"large.png", "large.jpg"})
        QVERIFY(image.save(path(name)));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600), 0);

    TavikImageList list;
    list.setIconRemSz(5, 5);
    list.addImage(path("large.jpg"));
    QVERIFY(qAbs(list.item(0)->icon().pixmap(60).toImage().pixelColor(30, 30).red() - 100) < 3);
    list.addImage(path("large.png"));
    list.addImage(path("pipe.png"));
    list.addImage(path("pipe"));                      // the toolkit completes it
    image = QImage(6000, 6000, QImage::Format_RGB32); // what a camera makes, and Qt 6 reads no more of
    image.fill(Qt::green);
    QVERIFY(image.save(path("photograph.jpg")));
    list.addImage(path("photograph.jpg"));
    QVERIFY(!list.item(4)->icon().isNull());
    list.setIconRemSz(1e9, 1e9);
    list.addImage(QStringLiteral(":/Color/images/color.svg"));
    for (const int row : {1, 2, 3, 5})
        QVERIFY(list.item(row)->icon().isNull());
    list.show();
    list.grab();
}

TAVIK_TEST_MAIN(TestContainers)
#include "tst_containers.moc"
