#ifndef TAVIK_TESTS_STORM_STAGE_H
#define TAVIK_TESTS_STORM_STAGE_H

#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

/// A window that holds a control of every class, wired as an application wires them, and two popups, of
/// which one is a child of the window.
///
/// A slot is the place of one control. Whoever asks for its control gets a new one if it is gone.
class Stage
{
public:
    Stage();
    ~Stage();

    static int slotCount();
    static const char *className(int slot);

    /// A slot of this class, the first one.
    static int slotOf(const char *className);

    /// Slots of the two popups.
    static std::vector<int> popupSlots();

    QWidget *window() const { return m_window.get(); }

    /// The control of a slot, made anew if it is gone.
    QWidget *at(int slot);

    /// The control of a slot as it is, null if it is gone.
    QWidget *peek(int slot) const { return m_controls.at(size_t(slot)); }

    template <class Control>
    Control *control()
    {
        return static_cast<Control *>(at(slotOf(Control::staticMetaObject.className())));
    }

    /// Puts another control into a slot, and destroys the one that was there.
    void replace(int slot, QWidget *control);

    /// Deletes a control at once; or later, as applications must, if something goes on in it. See Busy.
    static void destroy(QWidget *control);

    /// Closes the lists that have dropped down in what is about to go, which Qt 6 does not survive: `openList` of
    /// `tavik-toolkit-faults` shows it.
    static void closeLists(const QObject *object);

    /// Lives as long as all that is connected here shall work.
    QObject *wires() const { return m_wires.get(); }

    /// The windows of running and of cancelled samplers.
    static std::vector<QPointer<QWidget>> samplers();

private:
    void adopt(int slot, QWidget *control);
    void wire(QWidget *control);

    std::unique_ptr<QObject> m_wires = std::make_unique<QObject>();
    std::unique_ptr<QWidget> m_window;
    std::vector<QPointer<QWidget>> m_controls;
};

#endif
