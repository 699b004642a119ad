#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <thread>
#include <vector>

#include "contract/Waiting.h"
#include "fakes/CapturedLog.h"
#include "samples/Samples.h"

namespace vantle {
namespace {

using namespace samples;
using namespace std::chrono_literals;

/// Decoders have no living parent. This process becomes their parent, so that it sees them end.
class DecoderLifetime : public testing::Test {
protected:
    DecoderLifetime() { prctl(PR_SET_CHILD_SUBREAPER, 1); }
    ~DecoderLifetime() override {
        while (wait(nullptr) > 0) continue;
        prctl(PR_SET_CHILD_SUBREAPER, 0);
    }

    static std::vector<pid_t> decoders() {
        const std::string self = std::to_string(getpid());
        std::ifstream list("/proc/self/task/" + self + "/children");
        std::vector<pid_t> children;
        for (pid_t child = 0; list >> child;) children.push_back(child);
        return children;
    }

    /// Waits for the next decoder that ends, and returns its status.
    static int statusOfEnded() {
        int status = -1;
        EXPECT_TRUE(waitUntil([&] { return waitpid(-1, &status, WNOHANG) > 0; }));
        return status;
    }

    static bool opensAndDraws(MediaLoader& loader, const std::string& name) {
        const auto image = loader.openImage(file(name));
        return image && image->draw(usual);
    }
};

TEST_F(DecoderLifetime, NoneRunsBeforeItIsNeeded) {
    Loader loader;
    EXPECT_THAT(decoders(), testing::IsEmpty());
    EXPECT_EQ(loader.openImage(file("nothing.png")), nullptr);
    EXPECT_THAT(decoders(), testing::IsEmpty());
}

TEST_F(DecoderLifetime, OneServesABurst) {
    Loader loader;
    ASSERT_TRUE(opensAndDraws(loader, "rgb.png"));
    const auto first = decoders();
    ASSERT_EQ(first.size(), 1U);
    for (const auto* name : {"dense.png", "translucent.png", "cut.png", "rgb.png"})
        opensAndDraws(loader, name);
    EXPECT_EQ(decoders(), first);
}

TEST_F(DecoderLifetime, AnotherFormatReplacesIt) {
    Loader loader;
    ASSERT_TRUE(opensAndDraws(loader, "rgb.png"));
    ASSERT_TRUE(opensAndDraws(loader, "baseline.jpg"));
    EXPECT_EQ(statusOfEnded(), 0);
    EXPECT_EQ(decoders().size(), 1U);
}

TEST_F(DecoderLifetime, ItEndsWithTheLoader) {
    {
        Loader loader;
        ASSERT_TRUE(opensAndDraws(loader, "rgb.png"));
    }
    EXPECT_EQ(statusOfEnded(), 0);
}

TEST_F(DecoderLifetime, EndsWhenItIsIdleAndStartsAgain) {
    Loader loader;
    const auto image = loader.openImage(file("rgb.png"));
    ASSERT_NE(image, nullptr);
    ASSERT_EQ(decoders().size(), 1U);
    // A decoder ends by itself after ten seconds.
    EXPECT_EQ(statusOfEnded(), 0);
    EXPECT_THAT(decoders(), testing::IsEmpty());
    EXPECT_NE(image->draw(usual), nullptr);
}

TEST_F(DecoderLifetime, ADecoderThatHangsIsKilledAndTheNextFileIsDrawn) {
    DecodingTimeouts timeout;
    timeout.image = 700ms;
    Loader loader(1, timeout);
    const auto image = loader.openImage(file("endless.pdf"));
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->draw(usual), nullptr);
    const int status = statusOfEnded();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    EXPECT_TRUE(opensAndDraws(loader, "quarters.pdf"));
}

TEST_F(DecoderLifetime, ADecoderThatStopsAnsweringIsKilled) {
    DecodingTimeouts timeout;
    timeout.image = 700ms;
    Loader loader(1, timeout);
    ASSERT_TRUE(opensAndDraws(loader, "rgb.png"));
    ASSERT_EQ(decoders().size(), 1U);
    kill(decoders()[0], SIGSTOP);
    EXPECT_FALSE(opensAndDraws(loader, "rgb.png"));
    const int status = statusOfEnded();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    EXPECT_TRUE(opensAndDraws(loader, "rgb.png"));
}

TEST_F(DecoderLifetime, ADecoderThatDiedBetweenRequestsIsReplaced) {
    Loader loader;
    const auto image = loader.openImage(file("rgb.png"));
    ASSERT_NE(image, nullptr);
    kill(decoders().at(0), SIGKILL);
    statusOfEnded();
    EXPECT_NE(image->draw(usual), nullptr);
}

TEST_F(DecoderLifetime, ADecoderThatIsReplacedDrawsTheSamePage) {
    Loader loader;
    const auto document = loader.openImage(file("two_pages.pdf"));
    ASSERT_NE(document, nullptr);
    ASSERT_TRUE(document->selectPage(1));
    kill(decoders().at(0), SIGKILL);
    statusOfEnded();
    const auto page = document->draw({128, 48});
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->rgba[2], 255) << "the second page is blue";
}

/// The probe dies at its second file, as a decoder may that the first file has damaged.
TEST_F(DecoderLifetime, ADecoderThatDiesAtTheNextFileIsReplaced) {
    ConfinedMediaLoader loader(VANTLE_PROBE_DECODER, [] { return 1.0; });
    for (int i = 0; i < 3; ++i) EXPECT_NE(loader.openImage(file("rgb.png")), nullptr) << i;
}

TEST_F(DecoderLifetime, AMissingProgramIsReportedOnce) {
    fakes::CapturedLog log;
    ConfinedMediaLoader loader("/nowhere/vantle-decoder", [] { return 1.0; });
    EXPECT_EQ(loader.openImage(file("rgb.png")), nullptr);
    EXPECT_EQ(loader.openRecording(file("short.mov")), nullptr);
    EXPECT_THAT(log.lines(),
                testing::ElementsAre("Cannot start the decoder, so captures have no pictures: "
                                     "/nowhere/vantle-decoder: No such file or directory"));
}

TEST_F(DecoderLifetime, AProgramThatIsNoDecoderIsReported) {
    fakes::CapturedLog log;
    ConfinedMediaLoader loader("/bin/true", [] { return 1.0; });
    EXPECT_EQ(loader.openImage(file("rgb.png")), nullptr);
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_THAT(log.lines()[0], testing::StartsWith("Cannot start the decoder"));
}

}  // namespace
}  // namespace vantle
