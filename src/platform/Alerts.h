#pragma once

#include <string>
#include <vector>

namespace vantle {

/// A short message with buttons, as plain data.
struct Alert {
    enum class Style { informational, warning };

    Style style = Style::informational;
    std::string messageText;
    std::string informativeText;
    /// The buttons in the order in which they were added. The first is the default button; Escape
    /// and closing the window mean the last one.
    std::vector<std::string> buttons;
};

/// Asks the user. Main thread only.
class Alerts {
public:
    /// The answer for the first button; the answer for each further button is one higher.
    static constexpr int firstButton = 1000;

    virtual ~Alerts() = default;

    /// Shows the alert in front of all other windows and returns when it has been answered.
    /// Meanwhile the run loop continues, and the card and the program's other windows can be used;
    /// a window that the user opens comes in front of the alert. If the program ends without an
    /// answer, returns the last button's.
    virtual int runModal(const Alert& alert) = 0;
};

}  // namespace vantle
