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
    /// where it is and does not keep the others back; the failure names each of them.
    virtual void recycle(const std::vector<Url>& urls, Completion completion) = 0;
};

}  // namespace vantle
