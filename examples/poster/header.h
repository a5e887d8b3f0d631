#ifndef POSTER_HEADER_H
#define POSTER_HEADER_H

#include <Tavik/TavikContainer>

class QKeySequence;
class QUndoStack;
class TavikButton;

/// The row of commands at the top, each with its shortcut.
class Header : public TavikContainer
{
    Q_OBJECT

public:
    /// Undo and redo act on a stack, and say what they would take back or bring.
    explicit Header(QUndoStack *undoStack, QWidget *parent = nullptr);

Q_SIGNALS:
    void openWanted();
    void saveWanted();
    void saveAsWanted();

private:
    TavikButton *addCommand(const QString &text, const QKeySequence &shortcut, bool isLink = false);
    void addUndo(QUndoStack *stack);
};

#endif
