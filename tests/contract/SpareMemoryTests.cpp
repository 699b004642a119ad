#include <gtest/gtest.h>
#include <unistd.h>

#include <cstddef>
#include <fstream>
#include <memory>
#include <vector>

#include "platform/linux/GlibcSpareMemory.h"

namespace vantle {
namespace {

std::size_t residentBytes() {
    std::ifstream statistics("/proc/self/statm");
    std::size_t all = 0;
    std::size_t resident = 0;
    statistics >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

TEST(GlibcSpareMemory, ReleasesFreeMemoryBelowUsedMemory) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer has an allocator of its own";
#endif
    constexpr std::size_t count = 4096;
    constexpr std::size_t size = 8192;
    std::vector<std::unique_ptr<std::vector<char>>> blocks;
    for (std::size_t i = 0; i < count; ++i)
        blocks.push_back(std::make_unique<std::vector<char>>(size, 'x'));
    const auto last = std::move(blocks.back());
    blocks.clear();
    const std::size_t before = residentBytes();
    GlibcSpareMemory().giveBack();
    EXPECT_LT(residentBytes() + count * size / 2, before);
    EXPECT_EQ(last->front(), 'x');
}

}  // namespace
}  // namespace vantle
