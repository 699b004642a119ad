#include <dlfcn.h>
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "TemporaryFolder.h"
#include "platform/linux/HeldLibrary.h"

namespace vantle {
namespace {

namespace fs = std::filesystem;

using Handle = std::unique_ptr<void, int (*)(void*)>;

Handle load(const HeldLibrary& library) {
    return {library.load(), dlclose};
}

class HeldLibraryTest : public testing::Test {
protected:
    HeldLibraryTest() { fs::copy_file(VANTLE_SOME_LIBRARY, path); }

    void putIntoItsPlace(const std::string& content) const {
        const fs::path next = path + ".next";
        std::ofstream(next) << content;
        fs::rename(next, path);
    }

    const TemporaryFolder folder;
    const std::string path = (folder / "library.so").path();
};

TEST_F(HeldLibraryTest, ReturnsTheFunctionsOfTheLibrary) {
    const HeldLibrary library(path);
    EXPECT_TRUE(library.isThere());
    const Handle loaded = load(library);
    ASSERT_NE(loaded, nullptr) << dlerror();
    EXPECT_NE(dlsym(loaded.get(), VANTLE_SOME_FUNCTION), nullptr);
}

TEST_F(HeldLibraryTest, KeepsTheLibraryThatExistedWhenItWasMade) {
    const HeldLibrary library(path);
    putIntoItsPlace("the next version");
    EXPECT_EQ(load(HeldLibrary(path)), nullptr);
    EXPECT_NE(load(library), nullptr) << dlerror();
}

TEST_F(HeldLibraryTest, LoadsALibraryThatWasDeletedMeanwhile) {
    const HeldLibrary library(path);
    fs::remove(path);
    EXPECT_NE(load(library), nullptr) << dlerror();
}

TEST_F(HeldLibraryTest, ReportsWhyNothingIsLoaded) {
    fs::remove(path);
    const HeldLibrary nothing(path);
    EXPECT_FALSE(nothing.isThere());
    EXPECT_EQ(load(nothing), nullptr);
    EXPECT_NE(dlerror(), nullptr);
}

}  // namespace
}  // namespace vantle
