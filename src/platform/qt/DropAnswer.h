#pragma once

#include <functional>
#include <memory>

namespace vantle {

/// Whether the program on which something is dropped takes it. Qt tells only what that program
/// promised while the pointer was over it; whether it kept the promise it says afterwards
/// (XdndFinished), if it is still there then. A Wayland compositor does not tell that: there, and
/// through XWayland, who has read nothing has taken nothing. To be made before the drag. Main
/// thread only.
class DropAnswer {
public:
    DropAnswer();
    ~DropAnswer();

    /// Calls `told` once, with what the program that promised last has answered: false also when it
    /// has gone or says nothing for a long while. `wasRead` becomes true when somebody reads what
    /// is dragged.
    void wait(std::shared_ptr<const bool> wasRead, std::function<void(bool wasTaken)> told);

private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

}  // namespace vantle
