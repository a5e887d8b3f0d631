#ifndef TAVIK_ACCESSIBLEPARTS_P_H
#define TAVIK_ACCESSIBLEPARTS_P_H

#include "foundation/controlparts_p.h"

#include <QAccessibleWidget>

#include <memory>

class AccessiblePart;

/// Tells a control by its parts, which are its children. Handles that move are announced.
class AccessibleParts : public QAccessibleWidget
{
public:
    AccessibleParts(QWidget *control, std::unique_ptr<ControlParts> parts,
                    QAccessible::Role role = QAccessible::Grouping);
    ~AccessibleParts() override;

    ControlParts &parts() const;

    /// The part that has the keyboard's focus within the control, or -1.
    int focusedPart() const;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

protected:
    /// What tells a part that is no widget.
    virtual QAccessibleInterface *makePart(int part) const;

private:
    std::unique_ptr<ControlParts> m_parts;
    mutable QVector<QAccessible::Id> m_ids; // 0 until the part is asked for
    QObject m_context;                      // ends its connections
};

#endif
