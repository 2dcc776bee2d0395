// What ends a wait, besides a datagram: control lines, and the request to stop the program. Single-threaded
// for its caller.
#ifndef SIMPRINTER_CONTROL_INPUT_H
#define SIMPRINTER_CONTROL_INPUT_H

#include "simprinter/sockets.h"

#include <chrono>
#include <optional>
#include <vector>

// Opens the standard input; false when there is none.
bool OpenControlInput();

// What to wait for: it has POLLIN when there is something to read.
pollfd ControlEntry();

// Reads what there is. `isOpen` becomes false at the end.
std::string ReadControlInput(bool& isOpen);

// From now on SIGTERM, SIGINT and their like on Windows (Ctrl+C, Ctrl+Break) only request that the program
// stops.
void CatchStopSignals();
void RequestStop();
bool IsStopRequested();

// Waits for one of the entries, until the given time, or a stop signal. When none is ready, no entry has
// events.
void WaitForEntries(std::vector<pollfd>& entries,
                    const std::optional<std::chrono::steady_clock::time_point>& until);

#endif
