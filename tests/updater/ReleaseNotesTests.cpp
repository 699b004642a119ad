#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <regex>
#include <string>

#include "updater/ReleaseNotes.h"

namespace vantle::updater {
namespace {

using testing::Eq;
using testing::HasSubstr;
using testing::Not;

struct Notes {
    const char* name;
    std::string html;
    std::string shown;
};

class ReleaseNotesTest : public testing::TestWithParam<Notes> {};

TEST_P(ReleaseNotesTest, AreMadeHarmless) {
    EXPECT_THAT(safeReleaseNotes(GetParam().html), Eq(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(
    Notes, ReleaseNotesTest,
    testing::Values(
        Notes{"nothing", "", ""}, Notes{"text", "All is well", "All is well"},
        Notes{"lists", "<ul><li>One</li><li>Two</li></ul>", "<ul><li>One</li><li>Two</li></ul>"},
        Notes{"largeLetters", "<P>A<BR/>B</P>", "<p>A<br>B</p>"},
        Notes{"attributes", "<p style='x' onclick=\"y\">A</p>", "<p>A</p>"},
        Notes{"images", "A<img src='https://vantle.example/a.png'>B", "AB"},
        Notes{"scripts", "A<script>alert('<b>')</script>B", "AB"},
        Notes{"styles", "<style>p { color: red }</style>B", "B"},
        Notes{"unclosedScript", "A<script>alert(1)", "A"},
        Notes{"comments", "A<!-- <img src=x> -->B", "AB"}, Notes{"unclosedComment", "A<!-- B", "A"},
        Notes{"doctype", "<!DOCTYPE html><p>A", "<p>A</p>"},
        Notes{"frames", "<iframe src='https://vantle.example'>A</iframe>", "A"},
        Notes{"secureLink", "<a href=\"https://vantle.example/a?b=c&d\">A</a>",
              "<a href=\"https://vantle.example/a?b=c&d\">A</a>"},
        Notes{"plainLink", "<a href='http://vantle.example'>A</a>", "A"},
        Notes{"scriptLink", "<a href='javascript:alert(1)'>A</a>", "A"},
        Notes{"fileLink", "<a href='file:///etc/passwd'>A</a>", "A"},
        Notes{"linkOutOfItsQuotes", "<a href='https://x\"onclick=y'>A</a>", "A"},
        Notes{"unclosed", "<p><b>A", "<p><b>A</b></p>"},
        Notes{"crossed", "<b><i>A</b>B</i>", "<b><i>A</i></b>B"},
        Notes{"closedOnly", "</p></b>A", "A"}, Notes{"lessThan", "1 < 2 > 0", "1 &lt; 2 &gt; 0"},
        Notes{"unclosedTag", "A<p", "A&lt;p"},
        Notes{"entities", "&amp;&lt;&#169;", "&amp;&lt;&#169;"},
        Notes{"unknownEntities", "&x; & &#x1;", "&amp;x; &amp; &amp;#x1;"}),
    [](const auto& notes) { return std::string(notes.param.name); });

TEST(ReleaseNotesLimitTest, LongNotesEndWithAnEllipsis) {
    const std::string shown = safeReleaseNotes("<p>" + std::string(1'000'000, 'a') + "</p>");
    EXPECT_LT(shown.size(), 40'000u);
    EXPECT_TRUE(shown.ends_with("a…</p>"));
}

TEST(ReleaseNotesLimitTest, DeeplyNestedTagsAreLeftOut) {
    std::string html;
    for (int i = 0; i < 1000; ++i) html += "<ul><li>";
    const std::string shown = safeReleaseNotes(html + "A");
    EXPECT_LT(shown.size(), 300u);
    EXPECT_THAT(shown, HasSubstr("A"));
}

/// For any input, the output has only listed tags, and only links have an attribute.
TEST(ReleaseNotesLimitTest, OnlyListedTagsRemain) {
    static const std::regex harmless(
        "</?(p|h[1-4]|ul|ol|li|b|i|strong|em|u|s|code|pre)>|<br>|</a>|<a "
        "href=\"https://[^\"<>]*\">");
    const std::vector<std::string> parts{"<",
                                         ">",
                                         "/",
                                         "a",
                                         "href",
                                         "=",
                                         "\"",
                                         "'",
                                         "https://x",
                                         "javascript:",
                                         "script",
                                         "img src",
                                         "p",
                                         "b",
                                         " ",
                                         "!--",
                                         "-->",
                                         "&",
                                         ";",
                                         "style",
                                         "\n",
                                         "?",
                                         std::string(1, '\0')};
    std::mt19937 random(7);
    for (int round = 0; round < 20'000; ++round) {
        std::string html;
        for (int i = 0; i < 30; ++i) html += parts[random() % parts.size()];
        const std::string rest = std::regex_replace(safeReleaseNotes(html), harmless, "");
        ASSERT_THAT(rest, Not(HasSubstr("<"))) << html;
        ASSERT_THAT(rest, Not(HasSubstr(">"))) << html;
    }
}

}  // namespace
}  // namespace vantle::updater
