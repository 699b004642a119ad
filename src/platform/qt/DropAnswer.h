#pragma once

#include <functional>
#include <memory>

namespace vantle {

/// Whether the program on which something is dropped takes it. A program that has read nothing has
/// taken nothing, on any display server. Qt tells only what the program promised while the pointer
/// was over it. On X11 the program says afterwards whether it kept the promise (XdndFinished), if
/// it is still there then; a Wayland compositor does not pass that on. To be made before the drag.
/// Main thread only.
class DropAnswer {
public:
    DropAnswer();
    ~DropAnswer();

    /// Calls `told` once, with what the program that promised last has answered: false also when it
    /// has gone or says nothing for a long while. `wasRead` becomes true when somebody has read
    /// some of what is dragged.
    void wait(std::shared_ptr<const bool> wasRead, std::function<void(bool wasTaken)> told);

private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

}  // namespace vantle
