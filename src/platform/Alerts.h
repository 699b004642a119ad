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
    /// In the order in which they were added: the first one is the default button, and the last
    /// one (of several) is what Escape and closing the window mean.
    std::vector<std::string> buttons;
};

/// Asks the user. Main thread only.
class Alerts {
public:
    /// The answer when the first button was pressed; the next button answers one more, and so on.
    static constexpr int firstButton = 1000;

    virtual ~Alerts() = default;

    /// Shows the alert before all other windows and returns when it was answered. Meanwhile the run
    /// loop goes on; the card and the program's other windows can be used, and one that the user
    /// asks for comes before the alert. Where the program ends without an answer, it is the last
    /// button's.
    virtual int runModal(const Alert& alert) = 0;
};

}  // namespace vantle
