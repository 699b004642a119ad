#include "CardStage.h"
#include "contract/PanelWindowContract.h"

namespace vantle {
namespace {

/// The real panel on a screen that nobody sees.
struct PanelOnStage : CardStage {
    void showCaptures(std::size_t count) {
        std::vector<CapturePointer> captures;
        for (std::size_t i = 0; i < count; ++i)
            captures.push_back(capture("shot " + std::to_string(i)));
        show(captures);
    }
    bool isShown() const { return window().isVisible(); }
    bool hasKeyboard() const { return window().isActive(); }

    CapturePanel& panel = preparedCard();
};

INSTANTIATE_TYPED_TEST_SUITE_P(CapturePanel, PanelWindowContract, PanelOnStage);

}  // namespace
}  // namespace vantle
