// Makes the library's controls known to screen readers, as long as the library is loaded.

#include "access/controltable_p.h"

#include <QAccessible>

/// The toolkit asks for each class of an object, beginning with the most derived one.
///
/// It has a plain name, by which the linker is told to take it from a static library.
extern "C" QAccessibleInterface *tavikAccessibleInterface(const QString &className, QObject *object)
{
    return ControlTable::interfaceFor(className, object);
}

namespace {

const struct Installation
{
    Installation() { QAccessible::installFactory(tavikAccessibleInterface); }
    ~Installation() { QAccessible::removeFactory(tavikAccessibleInterface); }
} installation;

} // namespace
