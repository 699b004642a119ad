#pragma once

#include <sys/types.h>

namespace vantle::applications {

/// Makes this program the parent of the processes that GLib starts, so that it learns how they end.
/// They outlive it nevertheless.
void adoptProcesses();

/// Returns false if a process that GLib has started could not become the program that was
/// requested: GLib starts a helper, which then executes the program, and does not learn whether
/// that succeeds. Waits for it, two seconds at most. Call adoptProcesses() before the start.
bool becameProgram(pid_t process);

}  // namespace vantle::applications
