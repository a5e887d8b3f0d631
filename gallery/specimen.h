#ifndef GALLERY_SPECIMEN_H
#define GALLERY_SPECIMEN_H

#include <QString>

class QWidget;

/// Controls held in a state, to be looked at.
namespace Specimen {

/// Rest is a control as it comes, which answers to the pointer; the others are held.
enum class State { Rest, Hover, Pressed, Focus, Checked, ReadOnly, Disabled };

/// The state's name, for people.
QString stateName(State state);

/// Puts a control into a state and keeps it there.
void hold(QWidget *control, State state);

} // namespace Specimen

#endif
