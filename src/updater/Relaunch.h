#pragma once

#include <sys/types.h>

#include <string>

#include "support/FileDescriptor.h"
#include "updater/Installation.h"

namespace vantle::updater {

/// Writes a byte to `tell`, the end of a pipe, as soon as it is sure to go on; without one nothing
/// happens. Then waits until the copy with the process number `running` has ended, and starts the
/// version that was prepared; a tree is put in its place before that. Where a new tree does not
/// come up (it ends without having said that it runs, or says nothing in time) the one before is
/// put back and started, and told what happened. The exit status of this process.
/// What a copy that is started finds is told in updates/RelaunchEnvironment.h.
int relaunch(const Installation& installation, const std::string& version, pid_t running,
             FileDescriptor tell);

}  // namespace vantle::updater
