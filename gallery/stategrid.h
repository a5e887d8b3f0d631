#ifndef GALLERY_STATEGRID_H
#define GALLERY_STATEGRID_H

#include "specimen.h"

#include <functional>

#include <QPair>
#include <QVector>
#include <QWidget>

class QGridLayout;

/// A table of specimens: one row a kind of control, one column a state.
class StateGrid : public QWidget
{
    Q_OBJECT

public:
    using Maker = std::function<QWidget *()>;

    explicit StateGrid(const QVector<Specimen::State> &states, QWidget *parent = nullptr);

    /// Adds a row; `make` is called once a state, and gives a control that has its size.
    void addRow(const QString &name, const Maker &make);

protected:
    /// Puts the controls into their states once they stand in their window: a control that gets a new
    /// parent is styled anew and may lose what it was held in.
    bool event(QEvent *event) override;

private:
    QVector<Specimen::State> m_states;
    QVector<QPair<QWidget *, Specimen::State>> m_held;
    QGridLayout *m_grid;
};

#endif
