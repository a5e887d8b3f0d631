#ifndef GALLERY_GROUPSPECIMENS_H
#define GALLERY_GROUPSPECIMENS_H

#include <QCoreApplication>

class QWidget;

/// Specimens of TavikButtonGroup, with what they report.
class GroupSpecimens
{
    Q_DECLARE_TR_FUNCTIONS(GroupSpecimens)

public:
    /// Text buttons that touch, side by side.
    static QWidget *bar();

    /// Text buttons one below the other, touching and apart.
    static QWidget *columns();

    /// A second click takes the choice back.
    static QWidget *uncheckable();

    /// Each button for itself.
    static QWidget *nonExclusive();

    /// Buttons that are pictures, in the three sets that have a drawing for each state.
    static QWidget *pictures();

    static QWidget *radioButtons();
};

#endif
