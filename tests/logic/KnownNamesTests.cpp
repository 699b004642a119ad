#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "capture/KnownNames.h"

namespace vantle {
namespace {

NameList listOf(const std::vector<std::string>& names) {
    NameList list;
    for (const auto& name : names) list.add(name);
    return list;
}

std::vector<std::string> unknown(KnownNames& known, const std::vector<std::string>& listed) {
    std::vector<std::string> names;
    known.reconcile(listOf(listed), [&names](std::string_view name) { names.emplace_back(name); });
    return names;
}

TEST(KnownNamesTest, ARenamedFileIsKnownUnderItsNewNameOnly) {
    KnownNames known(Url::file("/shots"), listOf({"a.png", "c.png"}));
    known.rename("a.png", "b.png");
    EXPECT_EQ(unknown(known, {"a.png", "b.png", "c.png"}), std::vector<std::string>{"a.png"});
}

}  // namespace
}  // namespace vantle
