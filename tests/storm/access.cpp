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
    const int slot = random.below(Stage::slotCount());
    return {QLatin1String(Stage::className(slot)),
            [=](Stage &stage) { TavikKeyboardAccess::install(stage.at(slot)); }};
}

Deed readAloud(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    return {QLatin1String(Stage::className(slot)), [=](Stage &stage) {
                for (QAccessibleInterface *interface :
                     tree(QAccessible::queryAccessibleInterface(stage.at(slot))))
                    read(interface);
            }};
}

/// What a screen reader's user does with one of the things that were read.
Deed assist(Random &random)
{
    const int slot = random.below(Stage::slotCount());
    const int node = random.below(40);
    const int action = random.below(4);
    const auto value = Wild::draw<int>(random);
    const QString text = QStringLiteral("%1 node %2 action %3 value %4")
                             .arg(QLatin1String(Stage::className(slot)))
                             .arg(node)
                             .arg(action)
                             .arg(value.text);
    return {text, [=](Stage &stage) {
                QWidget *control = stage.at(slot);
                const auto nodes = tree(QAccessible::queryAccessibleInterface(control));
                QAccessibleInterface *interface = nodes.at(node % nodes.size());
                QObject *object = interface->object();
                // A part's signals are those of its control. An animated click needs its button to the end.
                const Busy busy(object ? object : control, Busy::Nothing);
                if (QAccessibleValueInterface *slider = interface->valueInterface()) {
                    slider->setCurrentValue(value.value);
                } else if (QAccessibleActionInterface *actions = interface->actionInterface()) {
                    const QStringList names = actions->actionNames();
                    if (!names.isEmpty())
                        actions->doAction(names.at(action % names.size()));
                }
            }};
}

} // namespace

const std::vector<Action> &Actions::access()
{
    static const std::vector<Action> actions = {
        {"keyboardAccess", 1, keyboardAccess},
        {"readAloud", 6, readAloud},
        {"assist", 12, assist},
    };
    return actions;
}
