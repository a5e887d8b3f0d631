#ifndef POSTER_PANEL_H
#define POSTER_PANEL_H

#include "poster.h"

#include <Tavik/TavikExpandable>

class QBoxLayout;
class TavikContainer;

/// A panel of controls that show and change a part of the poster: rows with a name at the left.
///
/// A panel writes its controls in follow(), with their signals blocked, and reads them in one function that
/// each of their signals calls. So whatever changes the poster, an undo too, shows in the controls.
class Panel : public TavikExpandable
{
    Q_OBJECT

public:
    /// Width of a panel, and of what a row holds at most beside its name, in rem.
    static constexpr double RemWidth = 36;
    static constexpr double RemRowWidth = 25;

    /// What the rows are wide, in pixels.
    static int rowsWidth();

    Panel(const QString &title, Poster *poster, QWidget *parent = nullptr);

protected:
    /// Shows the settings in the controls.
    virtual void follow(const PosterSettings &settings) = 0;

    Poster *poster() const { return m_poster; }

    /// Edits the poster by a colour, and shows what is left of it by rounding, even if that is what was there.
    void editColor(const QString &what, const Poster::Edit &edit);

    /// Adds a row of widgets behind a name. An empty name leaves its place empty.
    void addRow(const QString &name, std::initializer_list<QWidget *> widgets);

    /// Adds a widget over the whole width.
    void addWide(QWidget *widget);

    /// To be called when all rows are there: takes their height, and begins to follow the poster.
    void finish(bool isOpen);

private:
    Poster *m_poster;
    TavikContainer *m_rows;
};

#endif
