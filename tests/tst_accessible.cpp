#include "support.h"

#include <Tavik/Tavik>

#include <QAccessible>
#include <QSignalSpy>

/// What a screen reader meets: the tree of accessible interfaces, its names, values and actions.
class TestAccessible : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void namesInThePopup();
    void square();
    void palette();
    void focusInThePalette();
    void gradient();
    void panel();
    void colorButton();
    void disabled();
};

namespace {

QAccessibleInterface *of(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString nameOf(QAccessibleInterface *interface)
{
    return interface->text(QAccessible::Name);
}

void press(QAccessibleInterface *interface)
{
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

} // namespace

void TestAccessible::namesInThePopup()
{
    TavikColorPopup popup;
    QCOMPARE(of(&popup)->role(), QAccessible::Dialog);
    QCOMPARE(nameOf(of(&popup)), QStringLiteral("Color Picker"));

    QStringList names;
    const QString fields = QStringLiteral("Hex R G B A C M Y");
    for (TavikLineEdit *edit : popup.findChildren<TavikLineEdit *>())
        names.append(nameOf(of(edit)));
    QCOMPARE(names.join(QLatin1Char(' ')), fields);

    names.clear();
    for (TavikColorSilder *slider : popup.findChildren<TavikColorSilder *>())
        names.append(nameOf(of(slider)));
    for (TavikButton *button : popup.findChildren<TavikButton *>())
        names.append(nameOf(of(button)));
    QCOMPARE(names, (QStringList{QStringLiteral("Hue"), QStringLiteral("Alpha"),
                                 QStringLiteral("Pick a color from the screen"),
                                 QStringLiteral("Add the current color")}));
}

void TestAccessible::square()
{
    TavikColorPicker square(102, 102);
    square.setCurrentColor(QColor::fromHsvF(0.4, 0.4, 0.8));
    square.setCurrentHue(0.4);
    QAccessibleInterface *interface = of(&square);
    QCOMPARE(interface->role(), QAccessible::Slider);
    QCOMPARE(nameOf(interface), QStringLiteral("Saturation and value"));
    const QString value = QStringLiteral("saturation 40 %, value 80 %, ") + square.currentColor().name();
    QCOMPARE(interface->text(QAccessible::Value), value);
    QCOMPARE(interface->text(QAccessible::Description), value);

    QAccessibleValueInterface *slider = interface->valueInterface();
    QCOMPARE(slider->minimumValue().toInt(), 0);
    QCOMPARE(slider->maximumValue().toInt(), 100);
    slider->setCurrentValue(65);
    QCOMPARE(slider->currentValue().toInt(), 65);
    QCOMPARE(qRound(square.currentColor().valueF() * 100), 80);
    slider->setCurrentValue(1000);
    QCOMPARE(slider->currentValue().toInt(), 100);
}

void TestAccessible::palette()
{
    TavikColorWell well;
    well.show();
    QAccessibleInterface *interface = of(&well);
    QCOMPARE(interface->role(), QAccessible::Table);
    QCOMPARE(nameOf(interface), QStringLiteral("Palette"));
    QAccessibleTableInterface *table = interface->tableInterface();
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->columnCount(), 8);
    QCOMPARE(interface->childCount(), 16);
    for (int i = 0; i < 16; ++i) {
        QAccessibleInterface *cell = interface->child(i);
        QCOMPARE(cell, table->cellAt(i / 8, i % 8));
        QCOMPARE(interface->indexOfChild(cell), i);
        QCOMPARE(cell->parent(), interface);
        const QPoint center = cell->rect().center();
        QCOMPARE(interface->childAt(center.x(), center.y()), cell);
    }

    QAccessibleInterface *third = interface->child(2);
    QCOMPARE(third->role(), QAccessible::Cell);
    QCOMPARE(nameOf(third), QStringLiteral("#f7c016"));
    QCOMPARE(third->tableCellInterface()->columnIndex(), 2);
    QSignalSpy selected(&well, &TavikColorWell::colorSelected);
    press(third);
    QCOMPARE(selected.takeFirst().first().value<QColor>(), QColor(0xf7, 0xc0, 0x16));

    QSignalSpy requested(&well, &TavikColorWell::addColorRequested);
    press(interface->child(15));
    QCOMPARE(requested.count(), 1);
    well.addColor(QColor(1, 2, 3, 102));
    QCOMPARE(nameOf(interface->child(0)), QStringLiteral("#010203, alpha 40 %"));
}

void TestAccessible::focusInThePalette()
{
    TavikColorWell well;
    TavikKeyboardAccess::install(&well);
    well.show();
    QApplication::setActiveWindow(&well);
    well.setFocus();
    QAccessibleInterface *interface = of(&well);
    QAccessibleInterface *cell = interface->child(7);
    QAccessibleInterface *button = interface->child(15);
    QTest::keyClick(&well, Qt::Key_End);
    QCOMPARE(interface->focusChild(), cell);
    QVERIFY(cell->state().focused && !button->state().focused);
    QTest::keyClick(&well, Qt::Key_Down);
    QCOMPARE(interface->focusChild(), button);
    QVERIFY(!cell->state().focused && button->state().focused);
}

void TestAccessible::gradient()
{
    TavikGradientBar bar(200, 24);
    QAccessibleInterface *interface = of(&bar);
    QCOMPARE(nameOf(interface), QStringLiteral("Gradient"));
    QCOMPARE(interface->childCount(), 4);
    QAccessibleInterface *square = interface->child(0);
    QAccessibleInterface *start = interface->child(1);
    QAccessibleInterface *end = interface->child(2);
    QCOMPARE(nameOf(square), QStringLiteral("Start color, #ffffff"));
    QCOMPARE(start->role(), QAccessible::Slider);
    QVERIFY(!start->actionInterface() && !square->valueInterface());

    start->valueInterface()->setCurrentValue(20);
    QCOMPARE(bar.startValue(), 20);
    end->valueInterface()->setCurrentValue(-5); // as near as it can
    QCOMPARE(end->valueInterface()->currentValue().toInt(), 21);

    QSignalSpy requests(&bar, &TavikGradientBar::colorPopupRequest);
    press(interface->child(3));
    QCOMPARE(requests.takeFirst().at(1).value<QColor>(), QColor(Qt::black));
    QCOMPARE(bar.selectedSide(), TavikGradientBar::EndSide);
    press(square);
    QCOMPARE(bar.selectedSide(), TavikGradientBar::StartSide);

    auto gone = std::make_unique<TavikGradientBar>();
    const QAccessible::Id part = QAccessible::uniqueId(of(gone.get())->child(1));
    gone.reset();
    QVERIFY(!QAccessible::accessibleInterface(part));
}

void TestAccessible::panel()
{
    TavikExpandable panel(QStringLiteral("Effects"), 5.0, false);
    QAccessibleInterface *interface = of(&panel);
    QCOMPARE(nameOf(interface), QStringLiteral("Effects"));
    QVERIFY(interface->state().expandable);
    QVERIFY(interface->state().collapsed && !interface->state().expanded);
    interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(interface->state().expanded && !interface->state().collapsed);
    QCOMPARE(nameOf(of(panel.findChild<TavikButton *>())), QStringLiteral("Open or close"));
}

void TestAccessible::colorButton()
{
    TavikColorButton button(Qt::white);
    QAccessibleInterface *interface = of(&button);
    QCOMPARE(interface->role(), QAccessible::Button);
    button.setCurrentColor(QColor(0x2e, 0x7d, 0x5b));
    QCOMPARE(nameOf(interface), QStringLiteral("Color, #2e7d5b"));
    button.setAccessibleName(QStringLiteral("Fill"));
    QCOMPARE(nameOf(interface), QStringLiteral("Fill, #2e7d5b"));
    QSignalSpy asked(&button, &TavikColorButton::showPopup);
    press(interface);
    QCOMPARE(asked.count(), 1);
}

void TestAccessible::disabled()
{
    TavikColorWell well;
    TavikGradientBar bar;
    TavikColorPicker square;
    for (QWidget *control :
         {static_cast<QWidget *>(&well), static_cast<QWidget *>(&bar), static_cast<QWidget *>(&square)})
        control->setEnabled(false);
    QVERIFY(of(&well)->child(0)->state().disabled);
    QSignalSpy selected(&well, &TavikColorWell::colorSelected);
    press(of(&well)->child(0));
    of(&bar)->child(1)->valueInterface()->setCurrentValue(10);
    of(&square)->valueInterface()->setCurrentValue(10);
    QCOMPARE(selected.count(), 0);
    QCOMPARE(bar.startValue(), 50);
    QVERIFY(!square.currentColor().isValid());
}

TAVIK_TEST_MAIN(TestAccessible)
#include "tst_accessible.moc"
