#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "fakes/FakeEnvironment.h"
#include "platform/linux/LibraryFile.h"
#include "platform/linux/RecognitionLanguages.h"

namespace vantle {
namespace {

using fakes::FakeEnvironment;
using testing::ElementsAre;

TEST(RecognitionLanguages, FollowTheVariablesInTheirOrder) {
    FakeEnvironment desktop{{"LANG", "fr_FR.UTF-8"}};
    EXPECT_THAT(recognitionLanguages(desktop), ElementsAre("fra", "eng"));
    desktop["LC_MESSAGES"] = "de_DE.UTF-8";
    EXPECT_THAT(recognitionLanguages(desktop), ElementsAre("deu", "eng"));
    desktop["LC_ALL"] = "es_ES";
    EXPECT_THAT(recognitionLanguages(desktop), ElementsAre("spa", "eng"));
    desktop["LANGUAGE"] = "pl:uk";
    EXPECT_THAT(recognitionLanguages(desktop), ElementsAre("pol", "ukr", "eng"));
    desktop["LC_ALL"] = "";
    desktop["LANGUAGE"] = "";
    EXPECT_THAT(recognitionLanguages(desktop), ElementsAre("deu", "eng"));
}

TEST(RecognitionLanguages, AreEnglishWithoutALocale) {
    EXPECT_THAT(recognitionLanguages(FakeEnvironment{}), ElementsAre("eng"));
    for (const auto* locale : {"C", "POSIX", "C.UTF-8", "en_GB.UTF-8"})
        EXPECT_THAT(recognitionLanguages(FakeEnvironment{{"LANG", locale}}), ElementsAre("eng"));
    EXPECT_THAT(recognitionLanguages(FakeEnvironment{{"LANG", "C"}, {"LANGUAGE", "de"}}),
                ElementsAre("eng"))
        << "the C library ignores it as well";
}

TEST(RecognitionLanguages, EachComesOnceAndEnglishLast) {
    const FakeEnvironment desktop{{"LANG", "de_AT.UTF-8"}, {"LANGUAGE", "de_AT:en:de:en_GB:fr"}};
    EXPECT_THAT(recognitionLanguages(desktop), ElementsAre("deu", "fra", "eng"));
}

TEST(RecognitionLanguages, AreNotTooMany) {
    const FakeEnvironment desktop{{"LANG", "de_DE"}, {"LANGUAGE", "de:fr:it:es:pt"}};
    EXPECT_THAT(recognitionLanguages(desktop), ElementsAre("deu", "fra", "ita", "eng"));
}

TEST(RecognitionLanguages, KnowCountriesAndScripts) {
    const auto languageOf = [](const char* locale) {
        return recognitionLanguages(FakeEnvironment{{"LANG", locale}}).front();
    };
    EXPECT_EQ(languageOf("zh_CN.UTF-8"), "chi_sim");
    EXPECT_EQ(languageOf("zh_SG"), "chi_sim");
    EXPECT_EQ(languageOf("zh_TW.UTF-8"), "chi_tra");
    EXPECT_EQ(languageOf("zh_HK.UTF-8"), "chi_tra");
    EXPECT_EQ(languageOf("pt_BR.UTF-8"), "por");
    EXPECT_EQ(languageOf("ja_JP.UTF-8"), "jpn");
    EXPECT_EQ(languageOf("nn_NO.UTF-8"), "nor");
    EXPECT_EQ(languageOf("sr_RS.UTF-8"), "srp");
    EXPECT_EQ(languageOf("sr_RS.UTF-8@latin"), "srp_latn");
    EXPECT_EQ(languageOf("ca_ES.UTF-8@valencia"), "cat");
    EXPECT_EQ(languageOf("fil_PH"), "fil");
}

TEST(RecognitionLanguages, NamesThatAreNoneAreIgnored) {
    for (const auto* locale : {"../../etc", "d/e", "DE", "_DE", ".UTF-8", "@euro", "1a"})
        EXPECT_THAT(recognitionLanguages(FakeEnvironment{{"LANG", locale}}), ElementsAre("eng"))
            << locale;
}

class RecognitionDataTest : public testing::Test {
protected:
    std::string found(const std::vector<std::string>& languages) const {
        const auto data = installedRecognitionData(languages, environment);
        if (!data) return "none";
        EXPECT_EQ(data->folder, folder.url().path());
        return data->languages;
    }

    TemporaryFolder folder;
    FakeEnvironment environment{{"TESSDATA_PREFIX", folder.url().path()}};
};

TEST_F(RecognitionDataTest, AreThoseOfTheLanguagesThatAreInstalled) {
    EXPECT_EQ(found({"deu", "eng"}), "none");
    writeText(folder / "eng.traineddata", "");
    EXPECT_EQ(found({"deu", "eng"}), "eng");
    writeText(folder / "deu.traineddata", "");
    writeText(folder / "fra.traineddata", "");
    EXPECT_EQ(found({"deu", "eng"}), "deu+eng");
    EXPECT_EQ(found({"ita"}), "none");
    EXPECT_EQ(found({}), "none");
}

TEST(LibraryFile, ExistsIfTheLinkerWouldFindIt) {
    EXPECT_TRUE(isLibraryInstalled("libc.so.6"));
    EXPECT_FALSE(isLibraryInstalled("libnothing-of-this-name.so.1"));
}

}  // namespace
}  // namespace vantle
