#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <string>

#include "samples/Samples.h"

namespace vantle {
namespace {

/// What a command has printed on both streams, and its exit status.
struct Printed {
    std::string text;
    int status = -1;
};

Printed printed(const std::string& command) {
    Printed result;
    std::FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
    if (!pipe) return result;
    char buffer[4096];
    while (std::fgets(buffer, sizeof buffer, pipe)) result.text += buffer;
    result.status = WEXITSTATUS(pclose(pipe));
    return result;
}

Printed read(const std::string& arguments, const std::string& variables = "LANG=C") {
    return printed(variables + " " VANTLE_READER " " + arguments);
}

TEST(ReaderProgram, PrintsTheTextAndNothingElse) {
    const auto [text, status] = read("--text " + samples::file("words.png").path());
    EXPECT_EQ(text, "Copy the text\nof this picture\n");
    EXPECT_EQ(status, 0);
}

TEST(ReaderProgram, ReadsTheLanguagesThatAreNamed) {
    const std::string picture = samples::file("words.png").path();
    EXPECT_EQ(read("--text " + picture + " --languages eng").status, 0);
    const auto [text, status] = read("--text " + picture + " --languages ../eng+none");
    EXPECT_EQ(text, "vantle-reader: Tesseract has no data of these languages\n");
    EXPECT_EQ(status, 1);
}

TEST(ReaderProgram, SaysWhyAPictureCannotBeRead) {
    const std::string damaged = samples::file("flipped.png").path();
    EXPECT_EQ(read("--text " + damaged).text,
              damaged + ": The picture cannot be opened, or it is damaged.\n");
    const auto [text, status] = read("--text /nothing.png");
    EXPECT_EQ(text, "/nothing.png: No such file or directory\n");
    EXPECT_EQ(status, 1);
}

TEST(ReaderProgram, SaysWhichDataCannotBeLoaded) {
    const std::string folder = testing::TempDir() + "vantle-reader-data";
    ASSERT_EQ(printed("mkdir -p " + folder + "; echo > " + folder + "/eng.traineddata").status, 0);
    const auto [text, status] =
        read("--text " + samples::file("words.png").path(), "LANG=C TESSDATA_PREFIX=" + folder);
    EXPECT_THAT(text, testing::HasSubstr("Text reader: the data of eng in " + folder +
                                         " cannot be loaded"));
    EXPECT_THAT(text, testing::HasSubstr("The program that recognizes text cannot be started."));
    EXPECT_EQ(status, 1);
}

TEST(ReaderProgram, ExplainsItsArguments) {
    for (const auto* arguments : {"", "words.png", "--text", "--text a.png --max 3", "--serve"}) {
        const auto [text, status] = read(arguments);
        EXPECT_THAT(text, testing::StartsWith("Usage: vantle-reader --text IN")) << arguments;
        EXPECT_EQ(status, 2) << arguments;
    }
}

TEST(ReaderProgram, LinksNothingOfTesseract) {
    const std::string libraries = printed("ldd " VANTLE_READER).text;
    EXPECT_THAT(libraries, testing::HasSubstr("libseccomp"));
    for (const auto* library : {"tesseract", "lept", "libcurl", "libarchive"})
        EXPECT_THAT(libraries, testing::Not(testing::HasSubstr(library)));
}

}  // namespace
}  // namespace vantle
