#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <vector>

#include "platform/qt/BorrowedSpaceBar.h"

namespace vantle::x11 {

/// Takes the space bar with a passive grab on the root window. Main thread only.
class SpaceBarGrab final : public BorrowedSpaceBar, public QAbstractNativeEventFilter {
public:
    SpaceBarGrab();
    ~SpaceBarGrab() override;
    SpaceBarGrab(const SpaceBarGrab&) = delete;
    SpaceBarGrab& operator=(const SpaceBarGrab&) = delete;

    void take() override;
    void giveBack() override;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    std::vector<std::uint8_t> grabbed_;  ///< The codes of the key while it is taken.
};

}  // namespace vantle::x11
