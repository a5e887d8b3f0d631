#include "actions.h"
#include "busy.h"
#include "stage.h"
#include "wild.h"

#include <Tavik/Tavik>

#include <QApplication>
#include <QTest>

namespace {

TavikColorPopup *popupAt(Stage &stage, int index)
{
    return static_cast<TavikColorPopup *>(stage.at(Stage::popupSlots().at(size_t(index))));
}

QString popupText(int index, const QString &arguments)
{
    return QStringLiteral("popup %1 %2").arg(index).arg(arguments);
}

/// Opens a popup anywhere, within the screen or far outside.
Deed openPopup(Random &random)
{
    const int index = random.below(2);
    const QPoint pos = random.oneIn(8) ? Wild::draw<QPoint>(random).value
                                       : QPoint(random.between(-200, 1000), random.between(-200, 800));
    const auto color = Wild::draw<QColor>(random);
    const QString text =
        popupText(index, QStringLiteral("at %1,%2 ").arg(pos.x()).arg(pos.y()) + color.text);
    return {text, [=](Stage &stage) { popupAt(stage, index)->showColorPopup(pos, color.value); }};
}

/// Clicks the button that starts the sampler: the only one that is a direct child.
Deed sample(Random &random)
{
    const int index = random.below(2);
    return {popupText(index, {}), [=](Stage &stage) {
                TavikColorPopup *popup = popupAt(stage, index);
                const Busy busy(popup);
                popup->findChild<TavikButton *>({}, Qt::FindDirectChildrenOnly)->click();
            }};
}

/// What is done to all samplers that are there: picked with, left, closed or deleted by an application that
/// deletes all its windows.
Deed endSampler(Random &random)
{
    struct End
    {
        const char *name;
        std::function<void(QWidget *, QPoint)> act;
    };
    const auto press = [](Qt::MouseButton button) {
        return [=](QWidget *window, QPoint pos) { QTest::mousePress(window, button, {}, pos); };
    };
    const auto key = [](Qt::Key code) {
        return [=](QWidget *window, QPoint) { QTest::keyPress(window, code); };
    };
    static const std::vector<End> ends = {
        {"left button", press(Qt::LeftButton)},
        {"right button", press(Qt::RightButton)},
        {"Alt", key(Qt::Key_Alt)},
        {"Escape", key(Qt::Key_Escape)},
        {"Return", key(Qt::Key_Return)},
        {"move",
         [](QWidget *window, QPoint pos) {
             // Not by the test library, which then processes all events.
             QMouseEvent event(QEvent::MouseMove, pos, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
             QApplication::sendEvent(window, &event);
         }},
        {"close", [](QWidget *window, QPoint) { window->close(); }},
        {"show", [](QWidget *window, QPoint) { window->show(); }},
        {"deleteLater", [](QWidget *window, QPoint) { window->deleteLater(); }},
        {"delete", [](QWidget *window, QPoint) { Stage::destroy(window); }},
    };
    const End &end = random.pick(ends);
    const QPoint pos(random.between(1, 799), random.between(1, 599));
    const QString text =
        QStringLiteral("sampler %1 %2,%3").arg(QLatin1String(end.name)).arg(pos.x()).arg(pos.y());
    return {text, [=](Stage &) {
                for (const QPointer<QWidget> &window : Stage::samplers()) {
                    if (window)
                        end.act(window, pos);
                }
            }};
}

/// What any widget can be told.
Deed treat(Random &random)
{
    struct Treatment
    {
        const char *name;
        std::function<void(QWidget *, int, int)> act;
    };
    static const std::vector<Treatment> treatments = {
        {"show", [](QWidget *widget, int, int) { widget->show(); }},
        {"hide", [](QWidget *widget, int, int) { widget->hide(); }},
        {"close", [](QWidget *widget, int, int) { widget->close(); }},
        {"enable", [](QWidget *widget, int, int) { widget->setEnabled(true); }},
        {"disable", [](QWidget *widget, int, int) { widget->setEnabled(false); }},
        {"raise", [](QWidget *widget, int, int) { widget->raise(); }},
        {"repaint", [](QWidget *widget, int, int) { widget->repaint(); }},
        {"resize", [](QWidget *widget, int x, int y) { widget->resize(x, y); }},
        {"move", [](QWidget *widget, int x, int y) { widget->move(x, y); }},
        {"grab", [](QWidget *widget, int, int) { widget->grab(QRect(0, 0, 300, 300)); }},
        {"mirror", [](QWidget *widget, int x,
                      int) { widget->setLayoutDirection(x > 300 ? Qt::RightToLeft : Qt::LeftToRight); }},
        {"restyle", [](QWidget *widget, int, int) { widget->setStyleSheet(widget->styleSheet()); }},
    };
    const int slot = random.below(Stage::slotCount());
    const Treatment &treatment = random.pick(treatments);
    const int x = random.between(-100, 700);
    const int y = random.between(-100, 500);
    const QString text = QStringLiteral("%1 %2 %3,%4")
                             .arg(QLatin1String(Stage::className(slot)), QLatin1String(treatment.name))
                             .arg(x)
                             .arg(y);
    return {text, [=](Stage &stage) {
                QWidget *control = stage.at(slot);
                const Busy busy(control);
                treatment.act(control, x, y);
            }};
}

/// The application's own window goes, and mostly comes back soon: hidden, it shows little.
Deed window(Random &random)
{
    const int state = random.below(12);
    const int width = random.between(0, 900);
    const int height = random.between(0, 700);
    return {QStringLiteral("%1 %2,%3").arg(state).arg(width).arg(height), [=](Stage &stage) {
                QWidget *window = stage.window();
                switch (state) {
                case 0:
                    window->hide();
                    break;
                case 1:
                    window->showMinimized();
                    break;
                case 2:
                    window->resize(width, height);
                    break;
                default:
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

const std::vector<Action> &Actions::windows()
{
    static const std::vector<Action> actions = {
        {"openPopup", 15, openPopup}, {"sample", 6, sample}, {"endSampler", 12, endSampler},
        {"treat", 30, treat},         {"window", 8, window}, {"closeActivePopup", 10, closeActivePopup},
    };
    return actions;
}
