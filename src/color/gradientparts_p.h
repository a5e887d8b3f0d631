#ifndef TAVIK_GRADIENTPARTS_P_H
#define TAVIK_GRADIENTPARTS_P_H

#include "foundation/controlparts_p.h"

#include <QCoreApplication>

class TavikGradientBar;

/// The squares and handles of a gradient bar, from left to right.
class GradientParts : public ControlParts
{
    Q_DECLARE_TR_FUNCTIONS(GradientParts)

public:
    enum Part : int { StartSquare, StartHandle, EndHandle, EndSquare, PartCount };

    explicit GradientParts(TavikGradientBar *bar);

    int count() const override;
    QRect rect(int part) const override;
    QString name(int part) const override;
    void press(int part) override;
    bool hasValue(int part) const override;
    int value(int part) const override;
    void setValue(int part, int value) override;
    void follow(QObject *context, const std::function<void(int)> &changed) const override;

private:
    QRect handle(const QRect &painted, int value) const;

    TavikGradientBar *m_bar;
};

#endif
