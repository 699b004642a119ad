#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/SharingSource.h"

namespace vantle::fakes {

/// Offers what a test sets, inside the call or when the test calls answer().
class FakeSharingSource final : public SharingSource {
public:
    /// The offers and the answer, which a test controls. Must outlive the source.
    struct Script {
        std::vector<SharingOffer> offers;
        bool isQuick = true;
        Found pending;

        void answer() { std::exchange(pending, nullptr)(offers); }
    };

    explicit FakeSharingSource(Script& script) : script_(script) {}

    void find(Found found) override {
        script_.pending = std::move(found);
        if (script_.isQuick) script_.answer();
    }

private:
    Script& script_;
};

}  // namespace vantle::fakes
