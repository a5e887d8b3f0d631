#include "benches.h"
#include "comparison.h"

#include "../tests/plaincolor.h"

#include <Tavik/Tavik>

#include <QApplication>
#include <QColorDialog>
#include <QMouseEvent>

#include <memory>

namespace {

constexpr int steps = 40; // in one measured round

void sendMouse(QEvent::Type type, QWidget *widget, const QPoint &pos)
{
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// A drag over a widget: each step is an event, all slots that follow, and the painting of what they touched.
Work drag(
    QWidget *widget, const std::function<void()> &atEachStep = [] {})
{
    return [=] {
        const QSize size = widget->size();
        sendMouse(QEvent::MouseButtonPress, widget, QPoint(5, 5));
        for (int step = 1; step <= steps; ++step) {
            sendMouse(
                QEvent::MouseMove, widget,
                QPoint(5 + (size.width() - 10) * step / steps, 5 + (size.height() - 10) * step / steps));
            atEachStep();
            QCoreApplication::sendPostedEvents();
        }
        sendMouse(QEvent::MouseButtonRelease, widget, QPoint(5, 5));
        return [] {};
    };
}

std::shared_ptr<TavikColorPopup> shownPopup(int rem)
{
    LenConverter::m_rem = rem;
    auto popup = std::make_shared<TavikColorPopup>();
    // A popup that is no popup window: one of those closes when another window shows.
    popup->setWindowFlags(Qt::FramelessWindowHint);
    popup->showColorPopup(QPoint(200, -2000), QColor(20, 90, 200));
    QCoreApplication::processEvents();
    return popup;
}

void compareWithPlainWay(int rem, double bound)
{
    const auto ours = shownPopup(rem);
    const auto plain = shownPopup(rem);
    Plain::addShadow(plain.get());
    QCoreApplication::processEvents();

    auto *plainSquare = plain->findChild<TavikColorPicker *>();
    const QSize size = plainSquare->size() - QSize(2, 2);
    const Work plainDrag = drag(plainSquare, [size] { Plain::square(0.6, size.width(), size.height()); });
    compare(
        "40 drag steps at rem " + std::to_string(rem) + ", against the plain way", bound,
        [ours, drag = drag(ours->findChild<TavikColorPicker *>())] { return drag(); },
        [plain, plainDrag] { return plainDrag(); });
}

void compareWithDialog()
{
    const auto ours = shownPopup(12);
    const auto dialog = std::make_shared<QColorDialog>(QColor(20, 90, 200));
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->show();
    QCoreApplication::processEvents();
    QWidget *square = nullptr;
    for (QWidget *widget : dialog->findChildren<QWidget *>()) {
        if (qstrcmp(widget->metaObject()->className(), "QColorPicker") == 0)
            square = widget;
    }
    compare(
        "40 drag steps at rem 12, against QColorDialog", 1.5,
        [ours, drag = drag(ours->findChild<TavikColorPicker *>())] { return drag(); },
        [dialog, drag = drag(square)] { return drag(); });
}

} // namespace

void registerPopup()
{
    compareWithDialog();
    compareWithPlainWay(12, 0.2);
    compareWithPlainWay(30, 0.1);
    LenConverter::initRem();
}
