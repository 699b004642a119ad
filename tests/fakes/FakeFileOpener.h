#pragma once

#include <string>
#include <vector>

#include "platform/FileOpener.h"

namespace vantle::fakes {

/// Records what would have been opened and shown.
class FakeFileOpener final : public FileOpener {
public:
    void open(const Url& url) override { opened.push_back(url); }
    void reveal(const std::vector<Url>& urls) override {
        revealed.insert(revealed.end(), urls.begin(), urls.end());
    }

    void openPage(const std::string& address) override { pages.push_back(address); }

    std::vector<Url> opened;
    std::vector<Url> revealed;
    std::vector<std::string> pages;
};

}  // namespace vantle::fakes
