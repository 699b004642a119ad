#include "platform/freedesktop/sharing/SharingSources.h"

#include <iterator>
#include <utility>

namespace vantle {
namespace {

struct Gathered {
    std::vector<std::vector<SharingOffer>> offers;  ///< The offers of each source.
    std::size_t missing = 0;
};

std::vector<SharingOffer> joined(std::vector<std::vector<SharingOffer>> parts) {
    std::vector<SharingOffer> all;
    for (auto& part : parts) std::ranges::move(part, std::back_inserter(all));
    return all;
}

}  // namespace

SharingSources::SharingSources(std::vector<std::unique_ptr<SharingSource>> sources)
    : sources_(std::move(sources)) {}

void SharingSources::find(Found found) {
    const auto gathered = std::make_shared<Gathered>();
    gathered->offers.resize(sources_.size());
    gathered->missing = sources_.size();
    if (sources_.empty()) found({});
    for (std::size_t i = 0; i < sources_.size(); ++i)
        sources_[i]->find([gathered, i, found](std::vector<SharingOffer> offers) {
            gathered->offers[i] = std::move(offers);
            if (--gathered->missing == 0) found(joined(std::move(gathered->offers)));
        });
}

}  // namespace vantle
