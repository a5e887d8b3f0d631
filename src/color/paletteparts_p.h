#ifndef TAVIK_PALETTEPARTS_P_H
#define TAVIK_PALETTEPARTS_P_H

#include "foundation/controlparts_p.h"

class TavikColorWell;

/// The cells of a palette, and its add button as the last of them.
class PaletteParts : public ControlParts
{
public:
    explicit PaletteParts(TavikColorWell *well);

    int count() const override;
    int columns() const override;
    QRect rect(int part) const override;
    QString name(int part) const override;
    QWidget *widget(int part) const override;
    void press(int part) override;

private:
    bool isButton(int part) const;

    TavikColorWell *m_well;
};

#endif
