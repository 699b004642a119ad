#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantle {

/// A list of file names in one block of memory. A folder of 100,000 files is listed at every change
/// in it, and an allocation for each name would cost more than the listing.
class NameList {
public:
    void add(std::string_view name) {
        starts_.push_back(static_cast<std::uint32_t>(text_.size()));
        text_ += name;
    }

    std::size_t size() const { return starts_.size(); }
    bool empty() const { return starts_.empty(); }

    /// The result is valid until the list is changed or destroyed.
    std::string_view operator[](std::size_t index) const {
        const std::size_t end = index + 1 < starts_.size() ? starts_[index + 1] : text_.size();
        return std::string_view(text_).substr(starts_[index], end - starts_[index]);
    }

private:
    std::string text_;
    std::vector<std::uint32_t> starts_;
};

}  // namespace vantle
