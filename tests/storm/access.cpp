#include "actions.h"
#include "busy.h"
#include "stage.h"
#include "wild.h"

#include <Tavik/TavikKeyboardAccess>

#include <QAccessible>
#include <QWidget>

namespace {

/// An interface and all those below it.
QVector<QAccessibleInterface *> tree(QAccessibleInterface *root)
{
    QVector<QAccessibleInterface *> all{root};
    for (int i = 0; i < all.size(); ++i) {
        for (int child = 0; child < all.at(i)->childCount(); ++child) {
            if (QAccessibleInterface *interface = all.at(i)->child(child))
                all.append(interface);
        }
    }
    return all;
}

void read(QAccessibleInterface *interface)
{
    for (const auto text : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
        interface->text(text);
    interface->role();
    interface->state();
    interface->childAt(interface->rect().x(), interface->rect().y());
    if (QAccessibleInterface *parent = interface->parent())
        parent->indexOfChild(interface);
    if (QAccessibleValueInterface *slider = interface->valueInterface())
        slider->currentValue();
    QAccessibleTableInterface *table = interface->tableInterface();
    if (table && table->rowCount() > 0 && table->columnCount() > 0)
        table->cellAt(table->rowCount() - 1, table->columnCount() - 1);
}

Deed keyboardAccess(Random &random)
{
    return deedTo(random.below(Stage::slotCount()),
                  [](Stage &, QWidget *control) { TavikKeyboardAccess::install(control); });
}

Deed readAloud(Random &random)
{
    return deedTo(random.below(Stage::slotCount()), [](Stage &, QWidget *control) {
        for (QAccessibleInterface *interface : tree(QAccessible::queryAccessibleInterface(control)))
            read(interface);
    });
}

/// What a screen reader's user does with one of the things that were read.
Deed assist(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const int node = random.below(40);
    const int action = random.below(4);
    const int value = Wild::integer(random);
    return deedTo(slot, [=](Stage &, QWidget *control) {
        const auto nodes = tree(QAccessible::queryAccessibleInterface(control));
        QAccessibleInterface *interface = nodes.at(node % nodes.size());
        QObject *object = interface->object();
        // A part's signals are those of its control. An animated click needs its button to the end.
        const Busy busy(object ? object : control, Busy::Nothing);
        if (QAccessibleValueInterface *slider = interface->valueInterface()) {
            slider->setCurrentValue(value);
        } else if (QAccessibleActionInterface *actions = interface->actionInterface()) {
            const QStringList names = actions->actionNames();
            if (!names.isEmpty())
                actions->doAction(names.at(action % names.size()));
        }
    });
}

} // namespace

std::vector<Action> Actions::access()
{
    return {
        {"keyboardAccess", 1, keyboardAccess},
        {"readAloud", 6, readAloud},
        {"assist", 12, assist},
    };
}
