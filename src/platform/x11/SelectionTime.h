#pragma once

#include <QWindow>
#include <functional>
#include <memory>

namespace vantle::x11 {

/// The X server gives the clipboard only to who names a later moment than whoever took it last, and
/// Qt names that of the last event that reached this program. A program that nobody has touched for
/// a while would so be refused.
class SelectionTime {
public:
    SelectionTime();
    ~SelectionTime();

    /// Calls `work` once Qt knows the server's present time.
    void refreshThen(std::function<void()> work);

private:
    class Clock;
    std::unique_ptr<Clock> clock_;
};

}  // namespace vantle::x11
