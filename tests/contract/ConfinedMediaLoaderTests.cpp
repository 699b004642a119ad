#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "contract/MediaLoaderContract.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "samples/Samples.h"

namespace vantle {
namespace {

using samples::file;
using samples::usual;

struct DecodedMedia {
    static Url file(const std::string& name) { return samples::file(name); }

    samples::Loader loader;
};

INSTANTIATE_TYPED_TEST_SUITE_P(ConfinedMediaLoader, MediaLoaderContract, DecodedMedia);

TEST(ConfinedMediaLoaderTest, AHeldFileKeepsItsContentsAndIsOpenedLate) {
    const TemporaryFolder folder;
    const Url copy = folder / "a.png";
    std::filesystem::copy_file(file("rgb.png").path(), copy.path());
    samples::Loader loader;
    const auto image = loader.holdImage(copy);
    const auto text = folder / "text.png";
    writeText(text, "no image");
    const auto none = loader.holdImage(text);
    std::filesystem::remove(copy.path());
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->pixelSize(), usual);
    EXPECT_NE(image->draw(usual), nullptr);
    ASSERT_NE(none, nullptr) << "nobody has looked into it";
    EXPECT_EQ(none->pixelSize(), std::nullopt);
    EXPECT_EQ(none->draw(usual), nullptr);
}

}  // namespace
}  // namespace vantle
