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
#include <QPointer>
#include <QPropertyAnimation>
#include <QScrollBar>
#include <QTemporaryDir>

#include <cmath>
#include <memory>

class TestContainers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void containerDirections();
    void containerLayout();
    void containerLook();
    void expandableParts();
    void expandableToggles();
    void expandableReversesWhileRunning();
    void expandableOpenHeight();
    void expandableRequest();
    void expandablePresses_data();
    void expandablePresses();
    void expandableWildHeights();
    void expandableDeletedWhileRunning();
    void scrollArea();
    void scrollAreaHeights();
    void imageListSetup();
    void imageListImages();
    void imageListSelection();
};

namespace {

QBoxLayout *boxOf(const QWidget *widget)
{
    return qobject_cast<QBoxLayout *>(widget->layout());
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

void TestContainers::containerDirections()
{
    for (int direction : {0, 1, -7}) {
        const TavikContainer box(static_cast<Direction>(direction));
        QCOMPARE(boxOf(&box)->direction(),
                 direction == 0 ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        QCOMPARE(static_cast<const QLayoutItem *>(box.layout())->alignment(), Qt::AlignCenter);
    }
}

void TestContainers::containerLayout()
{
    LenConverter::m_rem = 18;
    TavikContainer box(Horizontal);
    const QBoxLayout *layout = boxOf(&box);
    box.setSpacing(1.5);
    QCOMPARE(layout->spacing(), 27);
    auto *child = new QWidget;
    box.addWidget(child);
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
    box.addSpacing(12);
    QCOMPARE(layout->itemAt(1)->sizeHint().width(), 12);
    box.addStretch();
    QCOMPARE(layout->stretch(2), 1);
    auto *nested = new QVBoxLayout;
    box.addLayout(nested);
    QCOMPARE(layout->stretch(3), 0);
    box.setAlignment(nested, Qt::AlignTop);
    QCOMPARE(static_cast<QLayoutItem *>(nested)->alignment(), Qt::AlignTop);
    box.addSpacerItem(new QSpacerItem(5, 6));
    box.addSpacerItem(nullptr);
    QCOMPARE(layout->count(), 5);

    box.setContentMargin(12);
    QCOMPARE(layout->contentsMargins(), QMargins(12, 12, 12, 12));
    box.removeMargins();
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    box.setAlignment(Qt::AlignLeft);
    QCOMPARE(static_cast<const QLayoutItem *>(layout)->alignment(), Qt::AlignLeft);
    box.removeWidget(child);
    QCOMPARE(layout->count(), 4);
    QCOMPARE(child->parentWidget(), &box);
    box.setRemSize(QSizeF(10, 5));
    QCOMPARE(box.size(), QSize(180, 90));
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
    TavikExpandable panel(QStringLiteral("Title"), 5.0, false);
    QCOMPARE(static_cast<const QLayoutItem *>(panel.layout())->alignment(), Qt::AlignCenter);
    QCOMPARE(panel.layout()->spacing(), 0);
    QCOMPARE(panel.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    const QPropertyAnimation *animation = animationOf(panel);
    QCOMPARE(animation->duration(), 500);
    QCOMPARE(animation->easingCurve().type(), QEasingCurve::OutBack);
    QCOMPARE(animation->propertyName(), QByteArray("m_remExpandHeight"));

    QWidget *bar = titleBar(panel);
    QCOMPARE(bar->minimumHeight(), 42);
    QCOMPARE(bar->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(bar->layout()->count(), 5);
    QCOMPARE(bar->layout()->itemAt(0)->sizeHint(), QSize(24, 0));
    auto *label = qobject_cast<TavikLabel *>(bar->layout()->itemAt(1)->widget());
    QCOMPARE(label->text(), QStringLiteral("Title"));
    QCOMPARE(label->minimumHeight(), 42);
    QCOMPARE(bar->layout()->itemAt(2)->spacerItem()->sizePolicy().horizontalPolicy(),
             QSizePolicy::Expanding);
    auto *button = qobject_cast<TavikButton *>(bar->layout()->itemAt(3)->widget());
    QCOMPARE(button->size(), QSize(42, 42));
    QCOMPARE(button->iconSize(), QSize(18, 18));
    QCOMPARE(button->color(), QStringLiteral("#108ee9"));
    QCOMPARE(bar->layout()->itemAt(4)->sizeHint(), QSize(16, 0));

    panel.setTitle(QStringLiteral("Other"));
    QCOMPARE(label->text(), QStringLiteral("Other"));
    const QWidget *inner = content(panel)->layout()->itemAt(0)->widget();
    QCOMPARE(inner->layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(content(panel)->layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(static_cast<const QLayoutItem *>(inner->layout())->alignment(),
             Qt::AlignHCenter | Qt::AlignTop);
    auto *child = new QWidget;
    panel.addWidget(child);
    panel.addLayout(new QHBoxLayout);
    panel.addSpacerItem(new QSpacerItem(1, 1));
    panel.setSpacing(0.5);
    QCOMPARE(child->parentWidget(), inner);
    QCOMPARE(inner->layout()->count(), 3);
    QCOMPARE(inner->layout()->spacing(), 9);
    panel.setRemWidth(20);
    QCOMPARE(panel.maximumWidth(), 360);
}

void TestContainers::expandableToggles()
{
    TavikExpandable panel(QStringLiteral("title"), 5.0, nullptr);
    QCOMPARE(animationOf(panel)->state(), QAbstractAnimation::Running); // a new panel runs once
    finish(panel);
    QCOMPARE(panel.remExpandHeight(), 5.0);
    QCOMPARE(content(panel)->height(), 60);

    QSignalSpy started(&panel, &TavikExpandable::animationStarted);
    QSignalSpy finished(&panel, &TavikExpandable::animationFinished);
    QAbstractAnimation::State stateAtStart = QAbstractAnimation::Running;
    connect(&panel, &TavikExpandable::animationStarted, this,
            [&] { stateAtStart = animationOf(panel)->state(); });
    auto *button = panel.findChild<TavikButton *>();
    for (int round = 1; round <= 4; ++round) {
        const bool opens = round % 2 == 0;
        const QImage arrow = button->icon().pixmap(16).toImage();
        button->click();
        QVERIFY(button->icon().pixmap(16).toImage() != arrow);
        QCOMPARE(stateAtStart, QAbstractAnimation::Stopped); // it is told before the run
        QCOMPARE(started.count(), round);
        QCOMPARE(animationOf(panel)->direction(),
                 opens ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
        QCOMPARE(animationOf(panel)->startValue().toDouble(), 0.0);
        QCOMPARE(animationOf(panel)->endValue().toDouble(), 5.0);
        finish(panel);
        QCOMPARE(finished.count(), round);
        QCOMPARE(panel.remExpandHeight(), opens ? 5.0 : 0.0);
        QCOMPARE(content(panel)->maximumHeight(), opens ? 60 : 0);
    }
}

void TestContainers::expandableReversesWhileRunning()
{
    TavikExpandable panel(QStringLiteral("title"), 10.0, false);
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
    TavikExpandable panel(QStringLiteral("title"), 5.0, false);
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
}

void TestContainers::expandableRequest()
{
    TavikExpandable panel(QStringLiteral("title"), 5.0, true);
    finish(panel);
    QSignalSpy clicked(panel.findChild<TavikButton *>(), &QAbstractButton::clicked);
    panel.onclickedExpanedRequest(); // opens once more, from nothing
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(animationOf(panel)->direction(), QAbstractAnimation::Forward);
    QCOMPARE(panel.remExpandHeight(), 0.0);
    finish(panel);
    QCOMPARE(panel.remExpandHeight(), 5.0);
}

void TestContainers::expandablePresses_data()
{
    QTest::addColumn<QString>("where");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("title") << QStringLiteral("label") << int(Qt::LeftButton) << true;
    QTest::newRow("empty part of the title row") << QStringLiteral("bar") << int(Qt::LeftButton) << true;
    QTest::newRow("any mouse button") << QStringLiteral("label") << int(Qt::RightButton) << true;
    QTest::newRow("arrow") << QStringLiteral("arrow") << int(Qt::LeftButton) << true;
    QTest::newRow("content") << QStringLiteral("content") << int(Qt::LeftButton) << false;
}

void TestContainers::expandablePresses()
{
    QFETCH(QString, where);
    QFETCH(int, button);
    QFETCH(bool, toggles);
    TavikExpandable panel(QStringLiteral("title"), 5.0, true);
    panel.resize(300, 100);
    panel.show();
    finish(panel);
    QCoreApplication::processEvents();
    QWidget *bar = titleBar(panel);
    QWidget *target = where == QLatin1String("label")   ? panel.findChild<TavikLabel *>()
                      : where == QLatin1String("arrow") ? panel.findChild<TavikButton *>()
                      : where == QLatin1String("bar")   ? bar
                                                        : content(panel);
    QSignalSpy started(&panel, &TavikExpandable::animationStarted);
    QSignalSpy clicked(panel.findChild<TavikButton *>(), &QAbstractButton::clicked);
    // The pointer stands on the title row if it stands on a part of it.
    bar->setAttribute(Qt::WA_UnderMouse, target != content(panel));
    QTest::mouseClick(panel.windowHandle(), Qt::MouseButton(button), {},
                      target->mapTo(&panel, target->rect().center()));
    QCOMPARE(started.count(), toggles ? 1 : 0);
    QCOMPARE(clicked.count(), started.count());
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&panel, &press);
    QVERIFY(!press.isAccepted()); // left to the base class
}

void TestContainers::expandableWildHeights()
{
    allowWarning(QStringLiteral("^QWidget::set(Min|Max)imumSize: .*"));
    const double wild[] = {0.0, -3.0, std::nan(""), 1e300, -1e300};
    for (double height : wild) {
        TavikExpandable panel(QStringLiteral("title"), height, nullptr);
        panel.show();
        animationOf(panel)->setCurrentTime(250);
        panel.unexpand();
        finish(panel);
        QVERIFY(content(panel)->maximumHeight() >= 0);
    }
}

void TestContainers::expandableDeletedWhileRunning()
{
    auto *window = new QWidget;
    auto *panel = new TavikExpandable(QStringLiteral("title"), 5.0, window);
    window->show();
    connect(panel->findChild<TavikButton *>(), &QAbstractButton::clicked, window,
            [window] { window->deleteLater(); });
    panel->findChild<TavikButton *>()->click();
    const QPointer<QPropertyAnimation> animation = animationOf(*panel);
    QCOMPARE(animation->state(), QAbstractAnimation::Running);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!animation);
    // One that closes before it has begun to open would call itself finished while it goes.
    auto early = std::make_unique<TavikExpandable>(QStringLiteral("title"), 5.0, nullptr);
    early->unexpand();
    const QSignalSpy finished(early.get(), &TavikExpandable::animationFinished);
    early.reset();
    QCOMPARE(finished.count(), 0);
    // A receiver that deletes the panel when its run has ended.
    auto *other = new TavikExpandable(QStringLiteral("title"), 5.0, nullptr);
    connect(other, &TavikExpandable::animationFinished, other, &QObject::deleteLater);
    finish(*other);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestContainers::scrollArea()
{
    LenConverter::m_rem = 18;
    TavikScrollArea area;
    QCOMPARE(area.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(area.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    auto *wide = new QWidget;
    wide->setFixedSize(3000, 3000);
    area.setWidget(wide);
    area.setRemSz(10, 50.9);
    QCOMPARE(area.size(), QSize(180, 50));
    area.show();
    QVERIFY(!area.horizontalScrollBar()->isVisible());
    QVERIFY(area.verticalScrollBar()->isVisible());
    area.setRemWidth(5);
    area.setRemHeight(30.9);
    QCOMPARE(area.size(), QSize(90, 30));
}

void TestContainers::scrollAreaHeights()
{
    allowWarning(QStringLiteral("^QWidget::set(Min|Max)imumSize: .*"));
    const std::pair<double, int> rows[] = {
        {30.999, 30}, {std::nan(""), 0}, {1e300, QWIDGETSIZE_MAX}, {-5.0, 0}};
    for (const auto &[height, pixels] : rows) {
        TavikScrollArea area;
        area.setRemHeight(height);
        QCOMPARE(area.maximumHeight(), pixels);
    }
}

void TestContainers::imageListSetup()
{
    TavikImageList list;
    QCOMPARE(list.selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(list.viewMode(), QListView::IconMode);
    QCOMPARE(list.movement(), QListView::Static);
    QCOMPARE(list.resizeMode(), QListView::Adjust);
    QVERIFY(!list.iconSize().isValid());
    list.setRemWidth(30);
    QCOMPARE(list.maximumWidth(), 360);
    list.setIconRemSz(5, 2.5);
    QCOMPARE(list.iconSize(), QSize(60, 30));
}

void TestContainers::imageListImages()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("wide.png"));
    QImage image(400, 100, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(image.rect(), QBrush(Qt::blue, Qt::Dense4Pattern));
    QVERIFY(image.save(file));

    expectWarning(QStringLiteral("^QFSFileEngine::open: No file name specified")); // of the toolkit
    TavikImageList list;
    list.addImage(file); // no icon size yet: the grid's own
    list.setIconRemSz(5, 5);
    list.addImage(file);
    list.addImage(QStringLiteral("/nowhere.png"));
    list.addImage(QString());
    QCOMPARE(list.count(), 4);
    const auto icon = [&list](int row) { return list.item(row)->data(Qt::DecorationRole).value<QIcon>(); };
    const int gridSize = list.style()->pixelMetric(QStyle::PM_IconViewIconSize, nullptr, &list);
    QCOMPARE(icon(0).availableSizes().value(0), QSize(gridSize, gridSize));
    QCOMPARE(icon(1).availableSizes().value(0), QSize(60, 60)); // stretched, not fitted
    const QColor mixed = icon(1).pixmap(60, 60).toImage().pixelColor(30, 30);
    QVERIFY(mixed.red() > 60 && mixed.blue() > 60); // of red and blue points, smoothly
    QVERIFY(icon(2).isNull() && icon(3).isNull());
    QVERIFY(list.item(1)->text().isEmpty());
    QVERIFY(!list.item(1)->data(Qt::SizeHintRole).isValid());
}

void TestContainers::imageListSelection()
{
    TavikImageList list;
    list.setIconRemSz(2, 2);
    for (int i = 0; i < 3; ++i)
        list.addImage(QStringLiteral(":/Color/images/color.svg"));
    for (int round = 0; round < 2; ++round) {
        list.show();
        QCOMPARE(list.currentRow(), -1);
        list.setCurrentRow(1);
        list.hide();
    }
    list.show();
    list.resize(300, 200);
    const auto centre = [&list](int row) { return list.visualItemRect(list.item(row)).center(); };
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, centre(0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, centre(2));
    QCOMPARE(list.selectedItems().size(), 2);
    const QRect tile = list.visualItemRect(list.item(0));
    const QImage picture = Support::picture(list.viewport());
    QCOMPARE(picture.pixelColor(tile.left() + 2, tile.center().y()), QColor("#08a274"));
}

TAVIK_TEST_MAIN(TestContainers)
#include "tst_containers.moc"
