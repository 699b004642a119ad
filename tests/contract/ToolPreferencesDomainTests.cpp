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

/// The settings of a screenshot tool. They hold only the tool's folder, which must exist.
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
