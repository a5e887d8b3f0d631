#ifndef TAVIK_TESTS_STORM_ACTIONS_H
#define TAVIK_TESTS_STORM_ACTIONS_H

#include "random.h"

#include <QString>

#include <functional>
#include <vector>

class QWidget;
class Stage;

/// What one step does: all that it needs was drawn beforehand, so that the log tells it before it is done, and
/// tells the same whatever the stage looks like.
struct Deed
{
    QString text; // what it is and to whom: its arguments follow from seed and step
    std::function<void(Stage &)> act;
};

/// A step that is done to the control of a slot.
Deed deedTo(int slot, const std::function<void(Stage &, QWidget *control)> &act, const QString &text = {});

/// A kind of step.
struct Action
{
    const char *name;
    int weight; // how often it comes, against the others
    Deed (*plan)(Random &random);
};

/// All of them, by family.
namespace Actions {

std::vector<Action> pointer();   // pointer.cpp
std::vector<Action> keyboard();  // keyboard.cpp
std::vector<Action> setters();   // setters.cpp
std::vector<Action> windows();   // windows.cpp
std::vector<Action> lifetimes(); // lifetimes.cpp
std::vector<Action> access();    // access.cpp

/// A step of any kind, chosen by weight.
Deed any(Random &random);

/// A step that opens or ends a sampler.
Deed sampling(Random &random);

/// A call of one of a class's public functions.
Deed set(Random &random, const char *className);

} // namespace Actions

#endif
