#pragma once

#include <sys/types.h>

#include <string>

#include "support/FileDescriptor.h"
#include "updater/Installation.h"

namespace vantle::updater {

/// Starts the prepared version after the running copy has ended. Writes a byte to `tell`, the end
/// of a pipe, as soon as it is certain to go on; if that is not possible, changes nothing. Then
/// waits until the copy with the process number `running` has ended, puts the new tree in its place
/// if the installation is a tree, and starts the new version. If a new tree does not come up (it
/// ends before it reports that it runs, or does not report in time), the previous tree is put back
/// and started, and receives a report of what happened. The environment of a started copy is
/// described in platform/RelaunchEnvironment.h. Returns the exit status for this process.
int relaunch(const Installation& installation, const std::string& version, pid_t running,
             FileDescriptor tell);

}  // namespace vantle::updater
