#include "support.h"

#include <Tavik/LenConverter>
#include <Tavik/Tavik>

#include <QFocusFrame>
#include <QSignalSpy>

/// The keys that keyboard access adds, the mark around what has the focus, and that there is none of it
/// without a call.
class TestKeyboardAccess : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void square();
    void squareReachesEachPixel();
    void palette();
    void gradientHandles();
    void gradientParts();
    void panel();
    void closedPanel();
    void tabOrderOfThePopup();
    void mark();
    void markIsSeenAroundTheTitle();
    void markStaysWhileChildrenHide();
    void marksNoListThatDropsDown();
    void sheetForAllWidgets();
    void coversLaterWidgets();
    void offByDefault();
};

namespace {

/// A window with keyboard access that holds one control.
template <class Control>
struct Stage
{
    template <class... Arguments>
    explicit Stage(Arguments... arguments)
        : control(new Control(arguments..., &window))
    {
        window.resize(400, 300);
        control->move(20, 20);
        TavikKeyboardAccess::install(&window);
        window.show();
        QApplication::setActiveWindow(&window);
        control->setFocus(Qt::TabFocusReason);
    }

    QWidget window;
    Control *control;
};

using Keys = QVector<int>; // with modifiers

void type(const Keys &keys)
{
    for (const int key : keys) {
        const int modifiers = key & Qt::KeyboardModifierMask;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key & ~modifiers),
                        Qt::KeyboardModifiers(modifiers));
    }
}

QRect marked(const QWidget &window)
{
    const auto *frame = window.findChild<QFocusFrame *>();
    if (!frame || !frame->isVisible())
        return {};
    const QWidget *around = frame->widget();
    return {around->mapTo(&window, QPoint()), around->size()};
}

int percent(double fraction)
{
    return qRound(fraction * 100);
}

constexpr int ctrl = Qt::CTRL;

} // namespace

void TestKeyboardAccess::square()
{
    const struct
    {
        Keys keys;
        int saturation; // percent, from 40
        int value;      // percent, from 80
    } rows[] = {
        {{Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Down}, 41, 79},
        {{Qt::Key_Up}, 40, 81},
        {{Qt::Key_PageUp}, 40, 90},
        {{Qt::Key_PageDown, Qt::Key_PageDown}, 40, 60},
        {{ctrl + Qt::Key_PageUp, ctrl + Qt::Key_PageUp, ctrl + Qt::Key_PageDown}, 50, 80},
        {{Qt::Key_Home, Qt::Key_Right, ctrl + Qt::Key_Home}, 1, 0},
        {{Qt::Key_End, Qt::Key_Right, ctrl + Qt::Key_End, Qt::Key_PageUp}, 100, 100}, // stays inside
    };
    for (const auto &row : rows) {
        Stage<TavikColorPicker> stage(190, 136);
        stage.control->setCurrentHue(0.4);
        stage.control->setCurrentColor(QColor::fromHsvF(0.4, 0.4, 0.8));
        QSignalSpy changed(stage.control, &TavikColorPicker::colorChanged);
        type(row.keys);
        QCOMPARE(changed.count(), row.keys.size());
        const QColor color = stage.control->currentColor();
        QCOMPARE(percent(color.saturationF()), row.saturation);
        QCOMPARE(percent(color.valueF()), row.value);
    }
}

void TestKeyboardAccess::squareReachesEachPixel()
{
    Stage<TavikColorPicker> stage(190, 136);
    stage.control->setFixedSize(300, 200); // the square stays as large as it was made
    for (int x = 0; x <= 188; ++x) {
        QCOMPARE(qRound(stage.control->currentColor().saturationF() * 188), x);
        type({int(Qt::SHIFT) + Qt::Key_Right});
    }
}

void TestKeyboardAccess::palette()
{
    const struct
    {
        Keys keys;
        const char *received;
    } rows[] = {
        {{Qt::Key_Space}, "#b60e2e"},
        {{Qt::Key_Right, Qt::Key_Return}, "#f3980f"},
        {{Qt::Key_Down, Qt::Key_Enter}, "#3981f2"},
        {{Qt::Key_End, Qt::Key_Right, Qt::Key_Space}, "#9c14ca"}, // the row ends
        {{Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Left, Qt::Key_Space}, "#b60e2e"},
        {{Qt::Key_Down, Qt::Key_End, Qt::Key_Space}, "add"},
    };
    for (const auto &row : rows) {
        Stage<TavikColorWell> stage;
        QStringList received;
        connect(stage.control, &TavikColorWell::colorSelected,
                [&](const QColor &color) { received.append(color.name()); });
        connect(stage.control, &TavikColorWell::addColorRequested,
                [&] { received.append(QStringLiteral("add")); });
        type(row.keys);
        QCOMPARE(received, QStringList(QString::fromLatin1(row.received)));
    }
}

void TestKeyboardAccess::gradientHandles()
{
    const int next = Qt::Key_Tab;
    const struct
    {
        Keys keys;
        int start;
        int end;
    } rows[] = {
        {{next, Qt::Key_Right, Qt::Key_Up}, 52, 100},
        {{next, Qt::Key_Left, Qt::Key_PageDown}, 39, 100},
        {{next, Qt::Key_PageUp}, 60, 100},
        {{next, Qt::Key_Home}, 0, 100},
        {{next, Qt::Key_End}, 99, 100}, // stops at the end handle
        {{next, next, Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Up}, 50, 90},
        {{next, next, Qt::Key_Home}, 50, 51},
        {{Qt::Key_Right}, 50, 100}, // on a square
    };
    for (const auto &row : rows) {
        Stage<TavikGradientBar> stage;
        type(row.keys);
        QCOMPARE(stage.control->startValue(), row.start);
        QCOMPARE(stage.control->endValue(), row.end);
    }
}

void TestKeyboardAccess::gradientParts()
{
    Stage<TavikGradientBar> stage;
    TavikLineEdit after(&stage.window);
    after.move(20, 100);
    after.show();
    QWidget::setTabOrder(stage.control, &after);
    QSignalSpy requests(stage.control, &TavikGradientBar::colorPopupRequest);
    type({Qt::Key_Space});
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(stage.control, &held);
    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests.takeFirst().at(1).value<QColor>(), QColor(Qt::white));
    type({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return});
    QCOMPARE(requests.takeFirst().at(1).value<QColor>(), QColor(Qt::black));
    type({Qt::Key_Tab});
    QVERIFY(after.hasFocus());
    type({Qt::Key_Backtab, Qt::Key_Return}); // comes in at its last part
    QVERIFY(stage.control->hasFocus());
    QCOMPARE(requests.takeFirst().at(1).value<QColor>(), QColor(Qt::black));
    type({Qt::Key_Backtab, Qt::Key_Backtab});
    const QRect before = marked(stage.window);
    type({Qt::Key_PageUp});
    QVERIFY(marked(stage.window).left() > before.left()); // the mark goes with the handle
}

void TestKeyboardAccess::panel()
{
    Stage<TavikExpandable> stage(QStringLiteral("Effects"), 5.0, true);
    auto *edit = new TavikLineEdit;
    stage.control->addWidget(edit);
    QSignalSpy toggled(stage.control, &TavikExpandable::animationStarted);
    type({Qt::Key_Space, Qt::Key_Return});
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(stage.control, &held);
    QCOMPARE(toggled.count(), 2);
    edit->show();
    edit->setFocus();
    QVERIFY(edit->hasFocus());
    type({Qt::Key_Return}); // comes up from the content, and is no business of the title
    QCOMPARE(toggled.count(), 2);
    type({Qt::Key_Backtab});
    QVERIFY(stage.control->hasFocus()); // with no stop at the arrow
}

void TestKeyboardAccess::closedPanel()
{
    Stage<TavikExpandable> stage(QStringLiteral("Effects"), 5.0, true);
    auto *edit = new TavikLineEdit;
    stage.control->addWidget(edit);
    edit->show();
    edit->setFocus();
    const QSize hint = stage.control->sizeHint();
    QSignalSpy finished(stage.control, &TavikExpandable::animationFinished);
    stage.control->unexpand();
    QVERIFY(finished.wait());
    QVERIFY(!edit->hasFocus() && !edit->isVisible());
    QCOMPARE(stage.control->sizeHint().width(), hint.width());
    stage.control->setFocus();
    type({Qt::Key_Tab});
    QVERIFY(stage.control->hasFocus()); // there is nothing else to go to
    type({Qt::Key_Space});
    QTRY_VERIFY(edit->isVisible());
    type({Qt::Key_Tab});
    QVERIFY(edit->hasFocus());
}

void TestKeyboardAccess::tabOrderOfThePopup()
{
    TavikColorPopup popup;
    TavikKeyboardAccess::install(&popup);
    popup.showColorPopup({10, 10}, Qt::red);
    QApplication::setActiveWindow(&popup);
    QVERIFY(popup.findChild<TavikColorPicker *>()->hasFocus());
    QVector<QWidget *> order;
    do {
        order.append(QApplication::focusWidget());
        type({Qt::Key_Tab});
    } while (!order.contains(QApplication::focusWidget()) && order.size() < 20);
    QCOMPARE(QApplication::focusWidget(), order.first());
    QCOMPARE(order.size(), 13); // square, button, two sliders, eight fields, palette
    const auto place = [&](QWidget *widget) { return widget->mapTo(&popup, widget->rect().center()); };
    for (int i = 1; i < order.size(); ++i) {
        const QPoint before = place(order.at(i - 1));
        const QPoint here = place(order.at(i));
        QVERIFY2(here.y() > before.y() || here.x() > before.x(), qPrintable(QString::number(i)));
    }
}

void TestKeyboardAccess::mark()
{
    Stage<TavikColorWell> stage;
    type({Qt::Key_Home});
    QCOMPARE(marked(stage.window), QRect(21, 21, 16, 16));
    type({Qt::Key_Down, Qt::Key_Right});
    QCOMPARE(marked(stage.window), QRect(44, 44, 16, 16));
    QTest::mouseClick(stage.control, Qt::LeftButton, {}, QPoint(50, 5));
    QTest::keyPress(stage.control, Qt::Key_Shift);
    QCOMPARE(marked(stage.window), QRect()); // who uses the mouse needs none
    type({Qt::Key_Right});                   // but keys go on where the mouse was
    QCOMPARE(marked(stage.window), QRect(90, 21, 16, 16));

    TavikButton button(QStringLiteral("Text"), TavikButton::Solid, &stage.window);
    button.setGeometry(20, 100, 80, 30);
    button.show();
    button.setFocus();
    QCOMPARE(marked(stage.window), button.geometry());
    TavikLineEdit edit(&stage.window);
    edit.show();
    edit.setFocus();
    QCOMPARE(marked(stage.window), QRect());
}

void TestKeyboardAccess::markIsSeenAroundTheTitle()
{
    Stage<TavikExpandable> stage(QStringLiteral("Effects"), 5.0, true); // which its title fills
    type({Qt::Key_F2});
    const QRect title = marked(stage.window);
    const QImage picture = Support::picture(&stage.window);
    for (const QPoint &beside :
         {QPoint(title.center().x(), title.top() - 1), QPoint(title.center().x(), title.bottom() + 1),
          QPoint(title.left() - 1, title.center().y()), QPoint(title.right() + 1, title.center().y())})
        QCOMPARE(picture.pixelColor(beside), QColor(Qt::black));
}

/// The toolkit goes through the children of a window that is minimized, the mark among them.
void TestKeyboardAccess::markStaysWhileChildrenHide()
{
    struct Giving : QWidget
    {
        using QWidget::QWidget;
        void hideEvent(QHideEvent *) override { parentWidget()->findChild<TavikColorWell *>()->setFocus(); }
    };
    Stage<Giving> stage;
    auto *well = new TavikColorWell(&stage.window);
    auto *square = new TavikColorPicker(&stage.window);
    for (QWidget *child : {static_cast<QWidget *>(stage.control), static_cast<QWidget *>(well),
                           static_cast<QWidget *>(square)})
        child->show();
    square->setFocus();
    type({Qt::Key_F2});
    QVERIFY(marked(stage.window).isValid());
    stage.window.showMinimized();
    QCOMPARE(QApplication::focusWidget(), well);
}

void TestKeyboardAccess::marksNoListThatDropsDown()
{
    allowWarning(QStringLiteral("This plugin does not support"));
    Stage<TavikComboBox> stage;
    stage.control->addItem(QStringLiteral("text"));
    type({Qt::Key_Space});
    QTRY_COMPARE(QApplication::focusWidget(), stage.control->view());
    QVERIFY(!stage.control->view()->window()->findChild<QFocusFrame *>());
}

void TestKeyboardAccess::sheetForAllWidgets()
{
    TavikColorWell well;
    well.setStyleSheet(QStringLiteral("QWidget { background-color: #ffeecc }"));
    const QImage before = Support::picture(&well);
    TavikKeyboardAccess::install(&well);
    QCOMPARE(Support::picture(&well), before);
}

void TestKeyboardAccess::coversLaterWidgets()
{
    Stage<QWidget> stage;
    TavikKeyboardAccess::install(stage.control);
    TavikKeyboardAccess::install(nullptr);
    auto *group = new QWidget; // made and shown elsewhere, and moved in with what it holds
    auto *well = new TavikColorWell(group);
    group->show();
    group->setParent(stage.control);
    auto *square = new TavikColorPicker(stage.control);
    group->show();
    square->show();
    for (QWidget *control : {static_cast<QWidget *>(well), static_cast<QWidget *>(square)})
        QCOMPARE(control->focusPolicy(), Qt::StrongFocus);
    QSignalSpy selected(well, &TavikColorWell::colorSelected);
    well->setFocus();
    type({Qt::Key_Space});
    QCOMPARE(selected.count(), 1);
    auto *popup = new TavikColorPopup(stage.control); // which becomes a window in its constructor
    popup->showColorPopup({10, 10}, Qt::red);
    QCOMPARE(QApplication::focusWidget(), popup->findChild<TavikColorPicker *>());
}

void TestKeyboardAccess::offByDefault()
{
    QWidget window;
    TavikColorPopup popup(&window);
    auto *panel = new TavikExpandable(&window);
    auto *bar = new TavikGradientBar(&window);
    window.show();
    popup.showColorPopup({10, 10}, Qt::red);
    QList<QWidget *> controls = {panel, bar, popup.findChild<TavikColorPicker *>(),
                                 popup.findChild<TavikColorWell *>()};
    for (const QWidget *control : qAsConst(controls))
        QCOMPARE(control->focusPolicy(), Qt::NoFocus);
    QVERIFY(!window.findChild<QFocusFrame *>() && !popup.focusWidget());
    TavikKeyboardAccess::install(&window);
    for (const QWidget *control : qAsConst(controls))
        QVERIFY(control->focusPolicy() & Qt::TabFocus);
}

TAVIK_TEST_MAIN(TestKeyboardAccess)
#include "tst_keyboardaccess.moc"
