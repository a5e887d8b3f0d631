#ifndef TAVIK_TESTS_STORM_BUSY_H
#define TAVIK_TESTS_STORM_BUSY_H

#include <QEvent>
#include <QPointer>

#include <vector>

class QWidget;

/// Marks an object as in the middle of an event, of a signal or of a call, as long as the mark lives.
///
/// Deleting a widget right there is a fault of whoever does it, because the toolkit still needs it.
class Busy
{
public:
    /// What may be deleted in spite of the mark.
    enum Survival {
        Buttons, ///< Push buttons, and the groups that hold them.
        Nothing,
    };

    /// `event` is what the object is in the middle of, if that is an event.
    explicit Busy(QObject *object, Survival survival = Buttons, QEvent::Type event = QEvent::None)
    {
        marks().push_back({object, survival, event});
    }
    ~Busy() { marks().pop_back(); }
    Q_DISABLE_COPY_MOVE(Busy)

    /// Whether a widget must be kept until what goes on is over.
    static bool needs(const QWidget *widget);

    static bool isAnything();

    /// Whether a colour popup is in the middle of its hiding. Whoever shows it again right then keeps the toolkit
    /// busy for ever, which closes all popups before it shows a window.
    static bool isPopupHiding();

private:
    struct Mark
    {
        QPointer<QObject> object;
        Survival survival;
        QEvent::Type event;
    };
    static std::vector<Mark> &marks();
};

#endif
