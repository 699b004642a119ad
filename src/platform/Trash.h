#pragma once

#include <functional>
#include <vector>

#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// The user's Trash, from which the desktop's programs can restore files under their names. Main
/// thread only.
class Trash {
public:
    using Completion = std::function<void(const Outcome&)>;

    virtual ~Trash() = default;

    /// Moves the files to the Trash without overwriting any there, and calls `completion` on the
    /// main thread when all are done, never inside this call. A file that cannot be moved stays
    /// where it is and does not hold up the others. The failure's message gives the path of each of
    /// these files, followed by the system's reason. Its code is the kind (std::errc) of the first
    /// failure: no_such_file_or_directory for a file that is gone.
    virtual void recycle(const std::vector<Url>& urls, Completion completion) = 0;
};

}  // namespace vantle
