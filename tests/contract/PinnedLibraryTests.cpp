#include <dlfcn.h>
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "TemporaryFolder.h"
#include "platform/linux/PinnedLibrary.h"

namespace vantle {
namespace {

namespace fs = std::filesystem;

using Handle = std::unique_ptr<void, int (*)(void*)>;

Handle load(const PinnedLibrary& library) {
    return {library.load(), dlclose};
}

class PinnedLibraryTest : public testing::Test {
protected:
    PinnedLibraryTest() { fs::copy_file(VANTLE_SOME_LIBRARY, path); }

    void putIntoItsPlace(const std::string& content) const {
        const fs::path next = path + ".next";
        std::ofstream(next) << content;
        fs::rename(next, path);
    }

    const TemporaryFolder folder;
    const std::string path = (folder / "library.so").path();
};

TEST_F(PinnedLibraryTest, ReturnsTheFunctionsOfTheLibrary) {
    const PinnedLibrary library(path);
    EXPECT_TRUE(library.exists());
    const Handle loaded = load(library);
    ASSERT_NE(loaded, nullptr) << dlerror();
    EXPECT_NE(dlsym(loaded.get(), VANTLE_SOME_FUNCTION), nullptr);
}

TEST_F(PinnedLibraryTest, KeepsTheLibraryThatExistedWhenItWasMade) {
    const PinnedLibrary library(path);
    putIntoItsPlace("the next version");
    EXPECT_EQ(load(PinnedLibrary(path)), nullptr);
    EXPECT_NE(load(library), nullptr) << dlerror();
}

TEST_F(PinnedLibraryTest, LoadsALibraryThatWasDeletedMeanwhile) {
    const PinnedLibrary library(path);
    fs::remove(path);
    EXPECT_NE(load(library), nullptr) << dlerror();
}

TEST_F(PinnedLibraryTest, ReportsWhyNothingIsLoaded) {
    fs::remove(path);
    const PinnedLibrary nothing(path);
    EXPECT_FALSE(nothing.exists());
    EXPECT_EQ(load(nothing), nullptr);
    EXPECT_NE(dlerror(), nullptr);
}

}  // namespace
}  // namespace vantle
