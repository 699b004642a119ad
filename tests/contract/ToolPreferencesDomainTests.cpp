#include <gtest/gtest.h>

#include <string>

#include "contract/PreferencesDomainContract.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "fakes/FakeEnvironment.h"
#include "platform/linux/screenshots/ScreenshotTools.h"
#include "platform/linux/screenshots/ToolPreferencesDomain.h"

namespace vantle {
namespace {

/// What a screenshot tool keeps; only of its folder, and only one that exists.
struct ToolDomain {
    TemporaryFolder folder;
    fakes::FakeEnvironment environment{{"HOME", folder.url().path()}};
    ToolPreferencesDomain domain{*makeScreenshotTool("ksnip", environment, nullptr), folder.url(),
                                 folder / "memory.conf"};

    void changeByOthers(const std::string&, const std::string& value) {
        writeText((folder / ".config").appending("ksnip").appending("ksnip.conf"),
                  "[Application]\nSaveDirectory=" + value + "\n");
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(ToolPreferencesDomain, PreferencesDomainContract, ToolDomain);

}  // namespace
}  // namespace vantle
