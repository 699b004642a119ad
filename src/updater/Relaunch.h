#pragma once

#include <sys/types.h>

#include <string>

#include "updater/Installation.h"

namespace vantle::updater {

/// Waits until the copy with the process number `running` has ended, and starts the version that
/// was prepared; a tree is put in its place before that. Where a new tree does not come up (it
/// ends with an error, or does not say in time that it runs) the one before is put back and
/// started, and told what happened. The exit status of this process.
///
/// A copy that is started finds in VANTLE_UPDATE_READY the number of a descriptor to which it
/// writes a byte once it runs, and in VANTLE_UPDATE_OUTCOME a report, if there is one for it.
int relaunch(const Installation& installation, const std::string& version, pid_t running);

}  // namespace vantle::updater
