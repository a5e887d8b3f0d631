#include "stategrid.h"

#include "look.h"

#include <QEvent>
#include <QGridLayout>

#include <Tavik/LenConverter>
#include <Tavik/TavikLabel>

StateGrid::StateGrid(const QVector<Specimen::State> &states, QWidget *parent)
    : QWidget(parent)
    , m_states(states)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(LenConverter::remToPx(Look::SmallGap));
    m_grid->setColumnMinimumWidth(0, LenConverter::remToPx(9));
    for (int column = 1; column <= m_states.size(); ++column) {
        const QString name = Specimen::stateName(m_states.at(column - 1));
        m_grid->addWidget(Look::flush(new TavikLabel(name, TavikLabel::Assist)), 0, column);
        m_grid->setColumnStretch(column, 1);
    }
}

void StateGrid::addRow(const QString &name, const Maker &make)
{
    const int row = m_grid->rowCount();
    m_grid->addWidget(Look::flush(new TavikLabel(name)), row, 0);
    for (int column = 1; column <= m_states.size(); ++column) {
        QWidget *control = make();
        m_grid->addWidget(control, row, column, Qt::AlignLeft | Qt::AlignVCenter);
        m_held.append({control, m_states.at(column - 1)});
    }
}

bool StateGrid::event(QEvent *event)
{
    if (event->type() == QEvent::Polish) {
        for (const auto &[control, state] : qAsConst(m_held))
            Specimen::hold(control, state);
    }
    return QWidget::event(event);
}
