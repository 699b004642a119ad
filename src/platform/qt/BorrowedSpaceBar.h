#pragma once

#include <functional>

namespace vantle {

/// The space bar while a window of another program has the keyboard. DisplayServer makes it. It is
/// not taken at first, and it is given back at the latest when this object goes. Main thread only.
class BorrowedSpaceBar {
public:
    virtual ~BorrowedSpaceBar() = default;

    /// From now on a press of the key alone comes here and not to the window that has the keyboard.
    /// Does nothing if another program has taken the key for itself.
    virtual void take() = 0;
    virtual void giveBack() = 0;

    /// Called when the key was pressed while it was taken. A key that is held repeats this call.
    std::function<void()> onPress = [] {};
};

}  // namespace vantle
