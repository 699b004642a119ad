#pragma once

#include "platform/LoginItem.h"

namespace vantle::fakes {

/// A login item that exists only in memory.
class FakeLoginItem final : public LoginItem {
public:
    Status status() const override { return current; }
    Outcome registerItem() override { return change(Status::enabled); }
    Outcome unregisterItem() override { return change(Status::notRegistered); }

    Status current = Status::notRegistered;
    Outcome failure;  ///< If set, nothing changes and this is the outcome.

private:
    Outcome change(Status status) {
        if (failure) return failure;
        current = status;
        return {};
    }
};

}  // namespace vantle::fakes
