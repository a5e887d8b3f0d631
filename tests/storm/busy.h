#ifndef TAVIK_TESTS_STORM_BUSY_H
#define TAVIK_TESTS_STORM_BUSY_H

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

    explicit Busy(QObject *object, Survival survival = Buttons) { marks().push_back({object, survival}); }
    ~Busy() { marks().pop_back(); }
    Q_DISABLE_COPY_MOVE(Busy)

    /// Whether a widget must be kept until what goes on is over.
    static bool needs(const QWidget *widget);

private:
    struct Mark
    {
        QPointer<QObject> object;
        Survival survival;
    };
    static std::vector<Mark> &marks();
};

#endif
