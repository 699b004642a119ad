#pragma once

#include <QWindow>
#include <functional>
#include <memory>

namespace vantle::x11 {

/// Brings Qt's time up to date before the clipboard is taken. The X server gives the clipboard only
/// to a program that names a later time than the previous owner did, and Qt names the time of the
/// last event that this program received. If the user has not used the program for a while, the
/// server would refuse.
class SelectionTime {
public:
    SelectionTime();
    ~SelectionTime();

    /// Calls `work` as soon as Qt knows the server's current time.
    void refreshThen(std::function<void()> work);

private:
    class Clock;
    std::unique_ptr<Clock> clock_;
};

}  // namespace vantle::x11
