#include "actions.h"
#include "busy.h"
#include "stage.h"
#include "wild.h"

#include <Tavik/Tavik>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

namespace {

/// What a window or a control is told, with a place where it needs one.
struct Treatment
{
    const char *name;
    void (*act)(QWidget *widget, QPoint pos);
};

/// Opens a popup anywhere, within the screen or far outside.
Deed openPopup(Random &random)
{
    const int slot = random.pick(Stage::popupSlots());
    const QPoint pos = random.oneIn(8) ? Wild::draw<QPoint>(random)
                                       : QPoint(random.between(-200, 1000), random.between(-200, 800));
    const QColor color = Wild::color(random);
    return deedTo(slot, [=](Stage &, QWidget *popup) {
        static_cast<TavikColorPopup *>(popup)->showColorPopup(pos, color);
    });
}

/// Clicks the button that starts the sampler: the only one that is a direct child.
Deed sample(Random &random)
{
    return deedTo(random.pick(Stage::popupSlots()), [](Stage &, QWidget *popup) {
        const Busy busy(popup);
        popup->findChild<TavikButton *>({}, Qt::FindDirectChildrenOnly)->click();
    });
}

/// What is done to all samplers that are there: picked with, left, closed or deleted by an application that
/// deletes all its windows.
Deed endSampler(Random &random)
{
    static const std::vector<Treatment> ends = {
        {"left button", [](QWidget *w, QPoint pos) { QTest::mousePress(w, Qt::LeftButton, {}, pos); }},
        {"right button", [](QWidget *w, QPoint pos) { QTest::mousePress(w, Qt::RightButton, {}, pos); }},
        {"Alt", [](QWidget *w, QPoint) { QTest::keyPress(w, Qt::Key_Alt); }},
        {"Escape", [](QWidget *w, QPoint) { QTest::keyPress(w, Qt::Key_Escape); }},
        {"Return", [](QWidget *w, QPoint) { QTest::keyPress(w, Qt::Key_Return); }},
        {"move",
         [](QWidget *w, QPoint pos) {
             // Not by the test library, which then processes all events.
             QMouseEvent event(QEvent::MouseMove, pos, w->mapToGlobal(pos), Qt::NoButton, Qt::NoButton,
                               Qt::NoModifier);
             QApplication::sendEvent(w, &event);
         }},
        {"close", [](QWidget *w, QPoint) { w->close(); }},
        {"show", [](QWidget *w, QPoint) { w->show(); }},
        {"deleteLater", [](QWidget *w, QPoint) { w->deleteLater(); }},
        {"delete", [](QWidget *w, QPoint) { Stage::destroy(w); }},
    };
    const Treatment &end = random.pick(ends);
    const QPoint pos(random.between(1, 799), random.between(1, 599));
    return {QLatin1String(end.name), [=](Stage &) {
                for (const QPointer<QWidget> &window : Stage::samplers()) {
                    if (window)
                        end.act(window, pos);
                }
            }};
}

/// What any widget can be told.
Deed treat(Random &random)
{
    static const std::vector<Treatment> treatments = {
        {"show", [](QWidget *widget, QPoint) { widget->show(); }},
        {"hide", [](QWidget *widget, QPoint) { widget->hide(); }},
        {"close", [](QWidget *widget, QPoint) { widget->close(); }},
        {"enable", [](QWidget *widget, QPoint) { widget->setEnabled(true); }},
        {"disable", [](QWidget *widget, QPoint) { widget->setEnabled(false); }},
        {"raise", [](QWidget *widget, QPoint) { widget->raise(); }},
        {"repaint", [](QWidget *widget, QPoint) { widget->repaint(); }},
        {"resize", [](QWidget *widget, QPoint pos) { widget->resize(pos.x(), pos.y()); }},
        {"move", [](QWidget *widget, QPoint pos) { widget->move(pos); }},
        {"grab", [](QWidget *widget, QPoint) { widget->grab(QRect(0, 0, 300, 300)); }},
        {"mirror", [](QWidget *widget,
                      QPoint pos) { widget->setLayoutDirection(Qt::LayoutDirection(pos.x() > 300)); }},
        {"restyle", [](QWidget *widget, QPoint) { widget->setStyleSheet(widget->styleSheet()); }},
    };
    const int slot = random.below(Stage::slotCount());
    const Treatment &treatment = random.pick(treatments);
    const int x = random.between(-100, 700);
    const int y = random.between(-100, 500);
    const auto act = [=](Stage &, QWidget *control) {
        const Busy busy(control);
        treatment.act(control, {x, y});
    };
    return deedTo(slot, act, QLatin1Char(' ') + QLatin1String(treatment.name));
}

/// The application's own window goes, and mostly comes back soon: hidden, it shows little.
Deed window(Random &random)
{
    const int state = random.below(12);
    const int width = random.between(0, 900);
    const int height = random.between(0, 700);
    return {QString::number(state), [=](Stage &stage) {
                QWidget *window = stage.window();
                if (state == 0) {
                    window->hide();
                } else if (state == 1) {
                    window->showMinimized();
                } else if (state == 2) {
                    window->resize(width, height);
                } else {
                    window->showNormal();
                    window->activateWindow();
                }
            }};
}

/// Closes what pops up: an open popup, list or menu.
Deed closeActivePopup(Random &)
{
    return {{}, [](Stage &) {
                if (QWidget *popup = QApplication::activePopupWidget())
                    popup->close();
            }};
}

} // namespace

Deed Actions::sampling(Random &random)
{
    return random.oneIn(2) ? sample(random) : endSampler(random);
}

std::vector<Action> Actions::windows()
{
    return {
        {"openPopup", 15, openPopup}, {"sample", 6, sample}, {"endSampler", 12, endSampler},
        {"treat", 30, treat},         {"window", 8, window}, {"closeActivePopup", 10, closeActivePopup},
    };
}
