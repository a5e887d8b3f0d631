#include "stage.h"

#include "../classes.h"
#include "busy.h"

#include <QApplication>
#include <QComboBox>

#include <algorithm>

namespace {

constexpr int columns = 5;
constexpr QSize cell(150, 100);
constexpr QSize fits(130, 80);

const Support::ControlClass &classOf(int slot)
{
    const auto &classes = Support::controlClasses();
    return classes.at(std::min(size_t(slot), classes.size() - 1)); // the second popup comes last
}

} // namespace

Stage::Stage()
    : m_window(std::make_unique<QWidget>())
    , m_controls(size_t(slotCount()))
{
    m_window->resize(columns * cell.width(), 5 * cell.height());
    m_window->show();
    for (int slot = 0; slot < slotCount(); ++slot)
        at(slot);
}

Stage::~Stage()
{
    m_wires.reset();
    m_window.reset();
    for (const QPointer<QWidget> &control : m_controls)
        delete control;
}

int Stage::slotCount()
{
    return int(Support::controlClasses().size()) + 1;
}

const char *Stage::className(int slot)
{
    return classOf(slot).name;
}

int Stage::slotOf(const char *className)
{
    int slot = 0;
    while (qstrcmp(Stage::className(slot), className) != 0)
        ++slot;
    return slot;
}

std::vector<int> Stage::popupSlots()
{
    return {slotCount() - 2, slotCount() - 1};
}

QWidget *Stage::at(int slot)
{
    if (!peek(slot)) {
        const bool hasParent = slot < slotCount() - 1;
        adopt(slot, classOf(slot).make(hasParent ? m_window.get() : nullptr));
    }
    return peek(slot);
}

void Stage::replace(int slot, QWidget *control)
{
    if (QWidget *old = peek(slot))
        destroy(old);
    adopt(slot, control);
}

void Stage::destroy(QWidget *control)
{
    const QPointer<QWidget> victim = control;
    closeLists(victim);
    if (victim && Busy::needs(victim))
        victim->deleteLater();
    else
        delete victim;
}

void Stage::closeLists(const QObject *object)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    std::vector<QPointer<QComboBox>> boxes;
    for (QComboBox *box : object->findChildren<QComboBox *>())
        boxes.emplace_back(box);
    for (const QPointer<QComboBox> &box : boxes) {
        if (box)
            box->hidePopup();
    }
#else
    Q_UNUSED(object)
#endif
}

void Stage::adopt(int slot, QWidget *control)
{
    m_controls.at(size_t(slot)) = control;
    wire(control);
    if (auto *popup = qobject_cast<TavikColorPopup *>(control)) {
        popup->setCurrentColor(Qt::red); // its fields follow from now on
        return;
    }
    control->move(slot % columns * cell.width(), slot / columns * cell.height());
    control->resize(fits);
    control->show();
}

void Stage::wire(QWidget *control)
{
    const auto showPopup = [this](const QPoint &pos, const QColor &color) {
        this->control<TavikColorPopup>()->showColorPopup(pos, color);
    };
    if (auto *button = qobject_cast<TavikColorButton *>(control)) {
        QObject::connect(button, &TavikColorButton::showPopup, wires(), showPopup);
    } else if (auto *bar = qobject_cast<TavikGradientBar *>(control)) {
        QObject::connect(bar, &TavikGradientBar::colorPopupRequest, wires(), showPopup);
    } else if (auto *well = qobject_cast<TavikColorWell *>(control)) {
        QObject::connect(well, &TavikColorWell::addColorRequested, well,
                         [well] { well->addColor(Qt::red); });
        // A palette that begins with what was chosen last.
        QObject::connect(well, &TavikColorWell::colorSelected, well, &TavikColorWell::addColor);
        QObject::connect(well, &TavikColorWell::colorSelected, wires(), [this](const QColor &color) {
            this->control<TavikColorPopup>()->setCurrentColor(color);
        });
    } else if (auto *popup = qobject_cast<TavikColorPopup *>(control)) {
        QObject::connect(popup, &TavikColorPopup::colorChanged, wires(), [this](const QColor &color) {
            this->control<TavikColorButton>()->setCurrentColor(color);
            auto *gradient = this->control<TavikGradientBar>();
            if (gradient->selectedSide() == TavikGradientBar::StartSide)
                gradient->setStartColor(color);
            else
                gradient->setEndColor(color);
        });
    }
}

std::vector<QPointer<QWidget>> Stage::samplers()
{
    std::vector<QPointer<QWidget>> found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (qstrcmp(window->metaObject()->className(), "Screenshot") == 0)
            found.emplace_back(window);
    }
    return found;
}
