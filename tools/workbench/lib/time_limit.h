// Work that may never end, such as a query of an unresponsive printer, with a limit of time.
#ifndef WORKBENCH_LIB_TIME_LIMIT_H
#define WORKBENCH_LIB_TIME_LIMIT_H

#include <functional>

// Runs the work on a thread of its own. False when it has not ended within the limit (milliseconds): it goes
// on then as a running job (lib/running_jobs.h), and must share what it uses. `meanwhile` is called several
// times a second. The work must not throw.
bool EndsWithin(double limit, std::function<void()> work, const std::function<void()>& meanwhile);

#endif
