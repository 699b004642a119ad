#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/SharingSource.h"

namespace vantle::fakes {

/// Offers what a test says, inside the call or when the test says so.
class FakeSharingSource final : public SharingSource {
public:
    /// What a test writes; outlives the source.
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
