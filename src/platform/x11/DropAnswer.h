#pragma once

#include <functional>
#include <memory>

namespace vantle::x11 {

/// Whether the program on which something is dropped takes it. Qt tells only what the program
/// promised while the pointer was over it. The program says afterwards whether it kept the promise
/// (XdndFinished), if it is still there then. To be made before the drag. Main thread only.
class DropAnswer {
public:
    DropAnswer();
    ~DropAnswer();

    /// Calls `told` once, with what the program that promised last has answered: false also when it
    /// has gone or says nothing for a long while.
    void wait(std::function<void(bool wasTaken)> told);

private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

}  // namespace vantle::x11
