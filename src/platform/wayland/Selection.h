#pragma once

#include <QMimeData>
#include <memory>

#include "platform/wayland/Protocols.h"

namespace vantle::wayland {

/// Offers contents on the clipboard of a Wayland session by the data-control protocol. The
/// toolkit's own way works only for a program that has just been clicked or typed into. Main thread
/// only.
class Selection {
public:
    /// Returns true if the compositor offers the protocol and there is a seat.
    static bool isOffered();

    Selection() = default;
    ~Selection();
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

    /// Offers `contents` until another program offers something; null clears the clipboard. The
    /// data is produced when a program requests it.
    void offer(std::unique_ptr<QMimeData> contents);

private:
    static void send(void* data, datacontrol::Source* source, const char* type, std::int32_t pipe);
    static void cancelled(void* data, datacontrol::Source* source);
    void withdraw();

    std::unique_ptr<QMimeData> contents_;
    datacontrol::Source* source_ = nullptr;
};

}  // namespace vantle::wayland
