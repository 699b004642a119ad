#pragma once

#include <QWindow>
#include <cstdint>
#include <functional>
#include <memory>

namespace vantle::x11 {

/// Asks the X server for its time and brings Qt's time up to date, which is that of the last event
/// that this program received. The server gives the clipboard only to a program that names a later
/// time than the previous owner did: if the user has not used the program for a while, it would
/// refuse.
class ServerTime {
public:
    ServerTime();
    ~ServerTime();

    using Work = std::function<void(std::uint32_t time)>;

    /// Calls `work` with the server's current time as soon as Qt knows it.
    void refreshThen(Work work);

private:
    class Clock;
    std::unique_ptr<Clock> clock_;
};

}  // namespace vantle::x11
