#include <gtest/gtest.h>

#include <map>
#include <string>

#include "contract/PreferencesDomainContract.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "contract/UserDefaultsContract.h"
#include "platform/linux/IniPreferencesDomain.h"
#include "platform/linux/IniUserDefaults.h"

namespace vantle {
namespace {

struct IniDefaults {
    TemporaryFolder folder;
    IniUserDefaults defaults{folder / "vantle.conf"};
};

INSTANTIATE_TYPED_TEST_SUITE_P(IniUserDefaults, UserDefaultsContract, IniDefaults);

struct IniDomain {
    TemporaryFolder folder;
    IniPreferencesDomain domain{folder / "domain.conf"};

    void changeByOthers(const std::string& key, const std::string& value) {
        writeText(folder / "domain.conf", "[General]\n" + key + "=" + value + "\n");
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(IniPreferencesDomain, PreferencesDomainContract, IniDomain);

TEST(IniPreferencesDomainTest, AnyKeyKeepsAnyValue) {
    IniDomain store;
    const std::map<std::string, PreferenceValue> values{
        {"choice", false}, {"number", 1.5}, {"text", "~/Pictures"}, {"digits", "12"}};
    for (const auto& [key, value] : values) store.domain.setValue(key, value);
    store.domain.synchronize();
    for (const auto& [key, value] : values) EXPECT_EQ(store.domain.value(key), value) << key;
}

}  // namespace
}  // namespace vantle
