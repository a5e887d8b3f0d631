#include "header.h"

#include "look.h"

#include <QFont>
#include <QKeySequence>
#include <QShortcut>
#include <QUndoStack>

#include <Tavik/LenConverter>
#include <Tavik/TavikButton>
#include <Tavik/TavikLabel>

Header::Header(QUndoStack *undoStack, QWidget *parent)
    : TavikContainer(Horizontal, QStringLiteral("#ffffff"), QStringLiteral("0"), QStringLiteral("#ffffff"),
                     QStringLiteral("0"), QStringLiteral("0"), parent)
{
    setContentMargin(LenConverter::remToPx(1));
    setSpacing(0.667);
    TavikLabel *title = Look::label(tr("Poster"));
    QFont font = title->font();
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    title->setFontRemSz(1.667);
    title->setColor(QStringLiteral("#08a274"));
    addSpacing(LenConverter::remToPx(1));
    addWidget(title);
    addStretch();
    addUndo(undoStack);
    addSpacing(LenConverter::remToPx(1));
    connect(addCommand(tr("Open..."), QKeySequence::Open), &QPushButton::clicked, this,
            &Header::openWanted);
    connect(addCommand(tr("Save"), QKeySequence::Save), &QPushButton::clicked, this, &Header::saveWanted);
    connect(addCommand(tr("Save as..."), QKeySequence::SaveAs), &QPushButton::clicked, this,
            &Header::saveAsWanted);
}

TavikButton *Header::addCommand(const QString &text, const QKeySequence &shortcut, bool isLink)
{
    TavikButton *button = Look::button(text, isLink ? 5 : 8);
    if (isLink) {
        button->initStyleProperties(TavikButton::Link);
        button->updateStyleSheet();
    }
    // A button's own shortcut would take the focus and click only later.
    connect(new QShortcut(shortcut, this), &QShortcut::activated, button, &QPushButton::click);
    button->setToolTip(shortcut.toString(QKeySequence::NativeText));
    addWidget(button);
    return button;
}

void Header::addUndo(QUndoStack *stack)
{
    TavikButton *undo = addCommand(tr("Undo"), QKeySequence::Undo, true);
    TavikButton *redo = addCommand(tr("Redo"), QKeySequence::Redo, true);
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(undo, &QPushButton::clicked, stack, &QUndoStack::undo);
    connect(redo, &QPushButton::clicked, stack, &QUndoStack::redo);
    connect(stack, &QUndoStack::canUndoChanged, undo, &QWidget::setEnabled);
    connect(stack, &QUndoStack::canRedoChanged, redo, &QWidget::setEnabled);
    const auto tellWhat = [](TavikButton *button) {
        const QString shortcut = button->toolTip();
        return [=](const QString &what) {
            button->setToolTip(what.isEmpty() ? shortcut : tr("%1 (%2)").arg(what, shortcut));
        };
    };
    connect(stack, &QUndoStack::undoTextChanged, undo, tellWhat(undo));
    connect(stack, &QUndoStack::redoTextChanged, redo, tellWhat(redo));
}
