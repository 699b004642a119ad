#pragma once

#include <memory>
#include <vector>

#include "platform/SharingSource.h"

namespace vantle {

/// Combines several sources into one; the offers are in the order of the sources.
class SharingSources final : public SharingSource {
public:
    explicit SharingSources(std::vector<std::unique_ptr<SharingSource>> sources);

    void find(Found found) override;

private:
    std::vector<std::unique_ptr<SharingSource>> sources_;
};

}  // namespace vantle
