#include "ScreenStage.h"
#include "contract/WindowContract.h"

namespace vantle {
namespace {

/// A real window on a screen that nobody sees.
struct SettingsOnStage : ScreenStage {
    bool isShown() const { return window.isVisible(); }
    bool hasKeyboard() {
        settle();
        return window.isActive();
    }
    Size contentSize() const {
        return {static_cast<double>(window.width()), static_cast<double>(window.height())};
    }

    SettingsWindow window{settingsContext()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(ScreenWindow, WindowContract, SettingsOnStage);

}  // namespace
}  // namespace vantle
