#ifndef TAVIK_CONTROLTABLE_P_H
#define TAVIK_CONTROLTABLE_P_H

class QAccessibleInterface;
class QObject;
class QString;
class QWidget;

/// Which keys a control is given, and what tells it to a screen reader: a row for each class that needs more than the
/// toolkit has for it.
namespace ControlTable {

/// Gives a control the keys of its class, or of the class that it is derived from.
void giveKeys(QWidget *control);

/// What tells an object as one of a class; null where the toolkit does it well.
QAccessibleInterface *interfaceFor(const QString &className, QObject *object);

} // namespace ControlTable

#endif
