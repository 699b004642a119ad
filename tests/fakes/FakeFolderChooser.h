#pragma once

#include <utility>
#include <vector>

#include "platform/FolderChooser.h"
#include "platform/Scheduler.h"

namespace vantle::fakes {

/// Records the requests; the test answers with close().
class FakeFolderChooser final : public FolderChooser {
public:
    explicit FakeFolderChooser(Scheduler& scheduler) : scheduler_(scheduler) {}

    void choose(const FolderRequest& request, Chosen chosen) override {
        if (chosen_) {
            scheduler_.async([chosen = std::move(chosen)] { chosen(std::nullopt); });
            return;
        }
        requests.push_back(request);
        chosen_ = std::move(chosen);
    }

    bool isOpen() const { return static_cast<bool>(chosen_); }
    void close(const std::optional<Url>& folder) { std::exchange(chosen_, nullptr)(folder); }

    std::vector<FolderRequest> requests;

private:
    Scheduler& scheduler_;
    Chosen chosen_;
};

}  // namespace vantle::fakes
