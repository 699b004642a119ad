#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <ostream>
#include <string>
#include <vector>

#include "fakes/CapturedLog.h"
#include "platform/linux/SystemReport.h"
#include "samples/Samples.h"

namespace vantle {
namespace {

using namespace samples;

double one() {
    return 1;
}

TEST(Confinement, TheKernelRefusesWhatADecoderMayNotDo) {
    ConfinedMediaLoader loader(VANTLE_PROBE_DECODER, one);
    const auto outcomes = loader.openImage(file("rgb.png"));
    ASSERT_NE(outcomes, nullptr);
    const double attempts = outcomes->pointSize().width;
    EXPECT_GT(attempts, 10);
    EXPECT_EQ(outcomes->pixelSize(), (Size{0, attempts}));
}

struct MissingGuard {
    const char* decoder;
    const char* name;
};

void PrintTo(const MissingGuard& guard, std::ostream* stream) {
    *stream << guard.name;
}

class ConfinementWithout : public testing::TestWithParam<MissingGuard> {};

TEST_P(ConfinementWithout, OpensFilesAndLogsTheMissingGuardOnce) {
    if (!hasLandlock()) GTEST_SKIP() << "this kernel lacks Landlock anyway";
    fakes::CapturedLog log;
    ConfinedMediaLoader loader(GetParam().decoder, one);
    // Two formats, so that two decoders start.
    for (const auto* name : {"rgb.png", "baseline.jpg"}) {
        const auto image = loader.openImage(file(name));
        ASSERT_NE(image, nullptr);
        const auto picture = image->draw(usual);
        ASSERT_NE(picture, nullptr);
        EXPECT_THAT(quarters(*picture), IsAbout(usualQuarters, 6));
    }
    EXPECT_THAT(log.lines(),
                testing::ElementsAre("This system lacks " + std::string(GetParam().name) +
                                     "; files are decoded without this protection"));
}

INSTANTIATE_TEST_SUITE_P(Guards, ConfinementWithout,
                         testing::Values(MissingGuard{VANTLE_WITHOUT_LANDLOCK, "Landlock"},
                                         MissingGuard{VANTLE_WITHOUT_SECCOMP, "seccomp"},
                                         MissingGuard{VANTLE_WITHOUT_BOTH,
                                                      "Landlock and seccomp"}));

TEST(Confinement, FaultReportsListTheActiveGuards) {
    if (!hasLandlock()) GTEST_SKIP() << "this kernel lacks Landlock";
    const std::string all = "png, jpeg, gif, tiff, heic, webp, pdf, recording; ";
    const auto guards = [&](const char* decoder) { return decoderReport(decoder).back(); };
    EXPECT_EQ(guards(VANTLE_DECODER),
              (ReportLine{"decoders", all + "Landlock active, seccomp active"}));
    EXPECT_EQ(guards(VANTLE_WITHOUT_LANDLOCK).value,
              all + "Landlock not available, seccomp active");
    EXPECT_EQ(guards(VANTLE_WITHOUT_SECCOMP).value, all + "Landlock active, seccomp not available");
}

TEST(Confinement, LogsNothingIfAllGuardsWork) {
    if (!hasLandlock()) GTEST_SKIP() << "this kernel lacks Landlock";
    fakes::CapturedLog log;
    EXPECT_NE(drawn("rgb.png"), nullptr);
    EXPECT_THAT(log.lines(), testing::IsEmpty());
}

std::string outputOf(const char* command) {
    std::string output;
    std::FILE* pipe = popen(command, "r");
    if (!pipe) return output;
    char buffer[4096];
    while (std::fgets(buffer, sizeof buffer, pipe)) output += buffer;
    EXPECT_EQ(pclose(pipe), 0);
    return output;
}

// The program and its views, with all libraries that they link.
class LinkedLibraries : public testing::TestWithParam<const char*> {
protected:
    std::string all() const { return outputOf((std::string("ldd ") + GetParam()).c_str()); }
    std::string own() const {
        return outputOf((std::string("readelf --dynamic --wide ") + GetParam()).c_str());
    }
};

TEST_P(LinkedLibraries, HoldNoCodec) {
    const std::string libraries = all();
    EXPECT_NE(libraries.find("libQt6Gui"), std::string::npos);
    // libpng is missing here, because Qt uses it for its own icons.
    for (const auto* codec :
         {"libisal", "libjpeg", "libturbojpeg", "libtiff", "libgif", "libheif", "libde265",
          "libdav1d", "libaom", "libwebp", "libpoppler", "libavcodec", "libavformat", "libswscale",
          "liblcms", "vantle-decoder", "libtesseract", "liblept"})
        EXPECT_EQ(libraries.find(codec), std::string::npos) << codec;
}

TEST_P(LinkedLibraries, HoldNothingOfUpdates) {
    const std::string libraries = own();
    EXPECT_NE(libraries.find("libQt6Core"), std::string::npos);
    for (const auto* library :
         {"libcurl", "libsodium", "libpugixml", "libarchive", "libssl", "libcrypto", "libsystemd"})
        EXPECT_EQ(libraries.find(library), std::string::npos) << library;
}

INSTANTIATE_TEST_SUITE_P(Confinement, LinkedLibraries,
                         testing::Values(VANTLE_PROGRAM, VANTLE_VIEWS));

TEST(Confinement, TheProgramLoadsNoSceneBeforeItShowsSomething) {
    const std::string libraries = outputOf("ldd " VANTLE_PROGRAM);
    EXPECT_NE(libraries.find("libQt6Gui"), std::string::npos);
    for (const auto* library : {"libQt6Quick", "libQt6Qml", "libQt6Network", "libQt6Svg"})
        EXPECT_EQ(libraries.find(library), std::string::npos) << library;
}

}  // namespace
}  // namespace vantle
