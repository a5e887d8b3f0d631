#include "actions.h"
#include "finding.h"
#include "stage.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace {

/// A place in a control, also a little outside, in thousandths of its size.
struct Place
{
    explicit Place(Random &random)
        : x(random.between(-100, 1100))
        , y(random.between(-100, 1100))
    {
    }

    QPoint in(const QWidget *widget) const
    {
        // Nothing is further away than the largest screens.
        constexpr int farthest = 20000;
        return {qMin(widget->width(), farthest) * x / 1000, qMin(widget->height(), farthest) * y / 1000};
    }

    int x;
    int y;
};

QWidget *receiverAt(QWidget *control, const QPoint &pos)
{
    QWidget *child = control->childAt(pos);
    return child ? child : control;
}

constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                       Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

struct Mouse
{
    explicit Mouse(Random &random)
        : slot(random.below(Stage::slotCount()))
        , byPlatform(random.oneIn(3))
        , button(random.pick(buttons))
    {
    }

    /// Straight to a control, or by way of the platform, where an open popup takes it.
    void send(QWidget *control, QEvent::Type type, const Place &place) const
    {
        const QPoint pos = place.in(control);
        const Qt::MouseButton own = type == QEvent::MouseMove ? Qt::NoButton : button;
        const Qt::MouseButton held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        if (!byPlatform) {
            QWidget *receiver = receiverAt(control, pos);
            const QPoint local = receiver->mapFrom(control, pos);
            QMouseEvent event(type, local, receiver->mapToGlobal(local), own, held, Qt::NoModifier);
            QSpontaneKeyEvent::setSpontaneous(&event);
            qApp->notify(receiver, &event);
        } else if (QWindow *window = control->window()->windowHandle()) {
            static int milliseconds = 0;
            const QPoint local = control->mapTo(control->window(), pos);
            qt_handleMouseEvent(window, local, window->mapToGlobal(local), held, own, type, Qt::NoModifier,
                                milliseconds += 50);
        }
    }

    int slot;
    bool byPlatform;
    Qt::MouseButton button;
};

/// These events at one place. A press, a move or a release may stand alone: what belongs to it comes later, to
/// another control, or never.
template <int... types>
Deed atOnePlace(Random &random)
{
    const Mouse mouse(random);
    const Place place(random);
    return deedTo(mouse.slot, [=](Stage &stage, QWidget *) {
        (mouse.send(stage.at(mouse.slot), QEvent::Type(types), place), ...);
    });
}

Deed drag(Random &random)
{
    const Mouse mouse(random);
    const std::vector<Place> places = {Place(random), Place(random), Place(random), Place(random)};
    return deedTo(mouse.slot, [=](Stage &stage, QWidget *) {
        // Each event to who then has the slot: the one before may have ended the control.
        mouse.send(stage.at(mouse.slot), QEvent::MouseButtonPress, places.front());
        for (const Place &place : places)
            mouse.send(stage.at(mouse.slot), QEvent::MouseMove, place);
        mouse.send(stage.at(mouse.slot), QEvent::MouseButtonRelease, places.back());
    });
}

bool leavesTheWheel(const QWidget *control)
{
    return control->inherits("TavikSpinbox") || control->inherits("TavikDoubleSpinbox") ||
           control->inherits("TavikSlider") || control->inherits("TavikDial");
}

Deed wheel(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const Place place(random);
    constexpr int turns[] = {-120, 120, 1, -100000, 0};
    const QPoint turn(random.pick(turns), random.pick(turns));
    return deedTo(slot, [=](Stage &, QWidget *target) {
        const QPointer<QWidget> control = target;
        const QString before = control->property("value").toString(); // a NaN equals nothing
        const QPoint pos = place.in(control);
        QWidget *receiver = receiverAt(control, pos);
        const QPoint local = receiver->mapFrom(control, pos);
        QWheelEvent event(local, receiver->mapToGlobal(local), {}, turn, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        const QWidget *focused = QApplication::focusWidget();
        qApp->notify(receiver, &event);
        if (QApplication::focusWidget() != focused)
            return; // a field that loses the focus to it ends its editing, and a trap there may set the value
        if (control && leavesTheWheel(control) && control->property("value").toString() != before)
            Finding::end(QStringLiteral("The wheel has changed the value"));
    });
}

Deed hover(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const Place place(random);
    const bool enters = random.oneIn(2);
    return deedTo(slot, [=](Stage &, QWidget *control) {
        const QPoint pos = place.in(control);
        QEvent leave(QEvent::Leave);
        QEnterEvent enter(pos, pos, control->mapToGlobal(pos));
        QApplication::sendEvent(control, enters ? &enter : &leave);
    });
}

} // namespace

std::vector<Action> Actions::pointer()
{
    return {
        {"click", 30, atOnePlace<QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease>},
        {"doubleClick", 4, atOnePlace<QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease>},
        {"press", 5, atOnePlace<QEvent::MouseButtonPress>},
        {"move", 5, atOnePlace<QEvent::MouseMove>},
        {"release", 5, atOnePlace<QEvent::MouseButtonRelease>},
        {"drag", 15, drag},
        {"wheel", 5, wheel},
        {"hover", 5, hover},
    };
}
