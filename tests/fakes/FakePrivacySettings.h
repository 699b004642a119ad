#pragma once

#include <vector>

#include "platform/PrivacySettings.h"

namespace vantle::fakes {

/// Records the folders for which the settings would have been opened.
class FakePrivacySettings final : public PrivacySettings {
public:
    void open(const Url& folder) override { opened.push_back(folder); }

    std::vector<Url> opened;
};

}  // namespace vantle::fakes
