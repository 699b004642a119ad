#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/FakeEnvironment.h"
#include "filetypes/FileTypes.h"
#include "platform/linux/SystemFacts.h"

namespace vantle {
namespace {

using testing::HasSubstr;

class SystemFactsTest : public testing::Test {
protected:
    std::string fact(const std::string& name) const {
        const auto facts = systemFacts(environment, share.url());
        const auto found = std::ranges::find(facts, name, &Fact::name);
        return found == facts.end() ? "no such fact" : found->value;
    }

    fakes::FakeEnvironment environment;
    TemporaryFolder share;
};

TEST_F(SystemFactsTest, TheReleaseSaysHowTheProgramWasInstalled) {
    EXPECT_EQ(fact("installed as"), "neither a package nor a tree of a release");
    writeText(share / "release", "version=1.0\nplatform=linux-x86_64-deb\ninstallation=package\n");
    EXPECT_EQ(fact("installed as"), "package");
}

TEST_F(SystemFactsTest, TheSystemIsNamed) {
    EXPECT_THAT(fact("system"), HasSubstr(", Linux "));
    EXPECT_THAT(fact("system"), HasSubstr(", glibc 2."));
}

TEST_F(SystemFactsTest, TheSessionIsTakenFromTheEnvironment) {
    EXPECT_EQ(fact("desktop"), "unknown");
    environment = {{"XDG_CURRENT_DESKTOP", "KDE"}, {"XDG_SESSION_TYPE", "x11"}};
    EXPECT_EQ(fact("desktop"), "KDE");
    EXPECT_EQ(fact("session"), "x11");
}

TEST_F(SystemFactsTest, DecodersThatDoNotStartAreNamed) {
    const auto facts = decoderFacts("/nowhere/vantle-decoder");
    ASSERT_EQ(facts.size(), formatNames.size());
    EXPECT_EQ(facts.front(), (Fact{"no decoder", "png: No such file or directory"}));
}

}  // namespace
}  // namespace vantle
