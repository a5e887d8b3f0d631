#ifndef TAVIK_TESTS_STORM_FINDING_H
#define TAVIK_TESTS_STORM_FINDING_H

#include <QString>

class Stage;

/// What the storm looks for beside what the sanitizers do.
namespace Finding {

/// The exit code of a storm that has found something by itself; a sanitizer's is 1.
constexpr int exitCode = 3;

/// Tells what was found, and ends the process at once.
[[noreturn]] void end(const QString &what);

/// Makes every message of the toolkit a finding, but for those that wild arguments are known to give.
void listenToMessages();

/// Ends the process if something is not as it always must be.
void check(Stage &stage);

/// Ends the process if there are more samplers than popups. For when all deferred deletions are done.
void checkSettled();

/// Ends the process if a window or a widget is left over once the stage is gone.
void checkNothingIsLeft();

} // namespace Finding

#endif
