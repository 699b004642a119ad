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
    /// A file that recycle() has moved.
    struct Moved {
        Url original;
        Url inTrash;
    };

    /// Gets the files for which the operation succeeded.
    using Completion = std::function<void(const Outcome&, const std::vector<Moved>&)>;

    virtual ~Trash() = default;

    /// Moves the files to the Trash without overwriting any there, and calls `completion` on the
    /// main thread when all are done, never inside this call. A
    /// file that cannot be moved stays where it is and does not hold up the others. The failure's
    /// message gives the path of each of these files, followed by the system's reason. Its code is
    /// the kind (std::errc) of the first failure: no_such_file_or_directory for a file that is
    /// gone.
    virtual void recycle(const std::vector<Url>& urls, Completion completion) = 0;

    /// Moves files back to where they were, so that the Trash holds nothing of them any more, and
    /// calls `completion` as recycle() does. Never overwrites a file: one whose place is taken
    /// stays in the Trash (file_exists), one that is no longer in the Trash is a failure, too.
    virtual void putBack(const std::vector<Moved>& files, Completion completion) = 0;
};

}  // namespace vantle
