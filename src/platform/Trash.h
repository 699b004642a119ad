#pragma once

#include <functional>
#include <vector>

#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// The user's Trash, from which the desktop's programs can bring files back under their names.
/// Main thread only.
class Trash {
public:
    using Completion = std::function<void(const Outcome&)>;

    virtual ~Trash() = default;

    /// Moves the files to the Trash, none of them over another, and calls `completion` on the main
    /// thread when it is done with all, never inside this call. A file that cannot be moved stays
    /// where it is and does not keep the others back. The failure's message has the path of each of
    /// them, with the system's reason behind it, and its code is the kind (std::errc) of the first:
    /// no_such_file_or_directory for a file that has gone.
    virtual void recycle(const std::vector<Url>& urls, Completion completion) = 0;
};

}  // namespace vantle
