#ifndef GALLERY_STATEGRID_H
#define GALLERY_STATEGRID_H

#include "specimen.h"

#include <functional>

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

private:
    QVector<Specimen::State> m_states;
    QGridLayout *m_grid;
};

#endif
