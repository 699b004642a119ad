#pragma once

#include <functional>
#include <memory>

namespace vantle::x11 {

/// Finds out whether the program on which something is dropped takes it. Qt tells only what the
/// program promised while the pointer was over it. Afterwards the program says whether it kept the
/// promise (XdndFinished), if it is still running. Must be created before the drag. Main thread
/// only.
class DropAnswer {
public:
    DropAnswer();
    ~DropAnswer();

    /// Calls `done` once, later, with the answer of the program that was under the pointer last.
    /// The answer is false if that program has gone or does not answer for 20 seconds.
    void wait(std::function<void(bool wasTaken)> done);

private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

}  // namespace vantle::x11
