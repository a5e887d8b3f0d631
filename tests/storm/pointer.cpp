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

    QString text() const { return QStringLiteral("%1,%2").arg(x).arg(y); }

    int x;
    int y;
};

constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                       Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

/// How a mouse event comes to a control: straight, or by way of the platform, where an open popup takes it.
enum class Way { Straight, Platform };

struct Mouse
{
    explicit Mouse(Random &random)
        : slot(random.below(Stage::slotCount()))
        , way(random.oneIn(3) ? Way::Platform : Way::Straight)
        , button(random.pick(buttons))
    {
    }

    QString text() const
    {
        return QStringLiteral("%1 button %2 %3")
            .arg(QLatin1String(Stage::className(slot)))
            .arg(button)
            .arg(QLatin1String(way == Way::Straight ? "straight" : "platform"));
    }

    void send(Stage &stage, QEvent::Type type, const Place &place) const
    {
        QWidget *control = stage.at(slot);
        const QPoint pos = place.in(control);
        if (way == Way::Platform)
            sendByPlatform(control, type, pos);
        else
            sendStraight(control, type, pos);
    }

private:
    Qt::MouseButton own(QEvent::Type type) const
    {
        return type == QEvent::MouseMove ? Qt::NoButton : button;
    }
    Qt::MouseButtons held(QEvent::Type type) const
    {
        return type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    }

    void sendByPlatform(QWidget *control, QEvent::Type type, const QPoint &pos) const
    {
        static int milliseconds = 0;
        if (QWindow *window = control->window()->windowHandle()) {
            const QPoint local = control->mapTo(control->window(), pos);
            qt_handleMouseEvent(window, local, window->mapToGlobal(local), held(type), own(type), type,
                                Qt::NoModifier, milliseconds += 50);
        }
    }

    void sendStraight(QWidget *control, QEvent::Type type, const QPoint &pos) const
    {
        QWidget *child = control->childAt(pos);
        QWidget *receiver = child ? child : control;
        const QPoint local = receiver->mapFrom(control, pos);
        QMouseEvent event(type, local, receiver->mapToGlobal(local), own(type), held(type), Qt::NoModifier);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(receiver, &event);
    }

public:
    int slot;
    Way way;
    Qt::MouseButton button;
};

/// These events at one place. A press, a move or a release may stand alone: what belongs to it comes later, to
/// another control, or never.
template <int... types>
Deed atOnePlace(Random &random)
{
    const Mouse mouse(random);
    const Place place(random);
    return {mouse.text() + QLatin1Char(' ') + place.text(),
            [=](Stage &stage) { (mouse.send(stage, QEvent::Type(types), place), ...); }};
}

Deed drag(Random &random)
{
    const Mouse mouse(random);
    const std::vector<Place> places = {Place(random), Place(random), Place(random), Place(random)};
    QString text = mouse.text();
    for (const Place &place : places)
        text += QLatin1Char(' ') + place.text();
    return {text, [=](Stage &stage) {
                mouse.send(stage, QEvent::MouseButtonPress, places.front());
                for (const Place &place : places)
                    mouse.send(stage, QEvent::MouseMove, place);
                mouse.send(stage, QEvent::MouseButtonRelease, places.back());
            }};
}

bool leavesTheWheel(const QWidget *control)
{
    for (const char *name : {"TavikSpinbox", "TavikDoubleSpinbox", "TavikSlider", "TavikDial"}) {
        if (control->inherits(name))
            return true;
    }
    return false;
}

Deed wheel(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const Place place(random);
    constexpr int turns[] = {-120, 120, 1, -100000, 0};
    const QPoint turn(random.pick(turns), random.pick(turns));
    const QString text = QStringLiteral("%1 %2 by %3,%4")
                             .arg(QLatin1String(Stage::className(slot)), place.text())
                             .arg(turn.x())
                             .arg(turn.y());
    return {text, [=](Stage &stage) {
                const QPointer<QWidget> control = stage.at(slot);
                const QString before = control->property("value").toString(); // a NaN equals nothing
                const QPoint pos = place.in(control);
                QWidget *child = control->childAt(pos);
                QWidget *receiver = child ? child : control.data();
                const QPoint local = receiver->mapFrom(control, pos);
                QWheelEvent event(local, receiver->mapToGlobal(local), {}, turn, Qt::NoButton,
                                  Qt::NoModifier, Qt::NoScrollPhase, false);
                QSpontaneKeyEvent::setSpontaneous(&event);
                qApp->notify(receiver, &event);
                if (control && leavesTheWheel(control) && control->property("value").toString() != before)
                    Finding::end(QStringLiteral("The wheel has changed the value"));
            }};
}

Deed hover(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const Place place(random);
    const bool enters = random.oneIn(2);
    const QString text = QStringLiteral("%1 %2 %3")
                             .arg(QLatin1String(Stage::className(slot)), place.text(),
                                  QLatin1String(enters ? "enters" : "leaves"));
    return {text, [=](Stage &stage) {
                QWidget *control = stage.at(slot);
                const QPoint pos = place.in(control);
                QEvent leave(QEvent::Leave);
                QEnterEvent enter(pos, pos, control->mapToGlobal(pos));
                QApplication::sendEvent(control, enters ? &enter : &leave);
            }};
}

} // namespace

const std::vector<Action> &Actions::pointer()
{
    static const std::vector<Action> actions = {
        {"click", 30, atOnePlace<QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease>},
        {"doubleClick", 4, atOnePlace<QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease>},
        {"press", 5, atOnePlace<QEvent::MouseButtonPress>},
        {"move", 5, atOnePlace<QEvent::MouseMove>},
        {"release", 5, atOnePlace<QEvent::MouseButtonRelease>},
        {"drag", 15, drag},
        {"wheel", 5, wheel},
        {"hover", 5, hover},
    };
    return actions;
}
