#ifndef TAVIK_PARTKEYS_P_H
#define TAVIK_PARTKEYS_P_H

#include "access/keys/controlkeys_p.h"
#include "foundation/controlparts_p.h"

#include <memory>

/// Moves among the parts of a control: by arrows in a grid, by Tab in a row. Space and Return press a part;
/// arrows, Page keys, Home and End move a handle.
class PartKeys : public ControlKeys
{
    Q_OBJECT

public:
    PartKeys(QWidget *control, std::unique_ptr<ControlParts> parts);

    /// The keys of a control, or nullptr if it has none.
    static PartKeys *of(const QWidget *control);

    /// The part that the keys are for.
    int current() const;

    QWidget *marked() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool press(const QKeyEvent &key) override;
    void enter(const QFocusEvent &event) override;

private:
    bool pressPart(const QKeyEvent &key);
    bool moveHandle(int key);
    bool moveInGrid(int key);
    bool moveInRow(int key);
    bool moveTo(int part);
    void moveToPartAt(const QPoint &pos);
    void placeSpot();

    std::unique_ptr<ControlParts> m_parts;
    QWidget *m_spot; // where a part is, for the focus mark
    int m_current = 0;
};

#endif
