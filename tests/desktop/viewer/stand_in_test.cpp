// The pages of our own, of addresses that try to be more than text in them.
#include "desktop/viewer/stand_in.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace desktop::viewer;
using desktop::uikit::Appearance;

bool has(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

std::string standIn(const std::string& address) {
    return standInPage(address, "i{}", Appearance::light);
}

/// What is between "<" and ">": each tag and no text.
std::vector<std::string> tagsOf(const std::string& html) {
    std::vector<std::string> tags;
    for (std::size_t at = html.find('<'); at != std::string::npos; at = html.find('<', at + 1)) {
        tags.push_back(html.substr(at, html.find('>', at) - at));
    }
    return tags;
}

TEST(StandIn, ShowsTheHostTheWordsAndTheAddress) {
    const std::string page =
        standIn("https://translate.google.com/?sl=auto&text=%E7%8C%AB%20and%20dog");
    EXPECT_TRUE(has(page, "<b>translate.google.com</b><small>翻译</small>")) << page;
    EXPECT_TRUE(has(page, "<h1>猫 and dog</h1>")) << page;
    EXPECT_TRUE(has(page, "<dt>sl</dt><dd>auto</dd>")) << page;
    EXPECT_TRUE(has(page, "?sl=auto&amp;text=%E7%8C%AB%20and%20dog</code>")) << page;
    EXPECT_TRUE(has(page, "不是原网页")) << page;
    EXPECT_TRUE(has(page, "<style>i{}</style>")) << page;
}

TEST(StandIn, HasThePhonesAppearance) {
    EXPECT_TRUE(has(standInPage("about:blank", "", Appearance::dark), "class=\"dark\""));
    EXPECT_TRUE(has(standInPage("about:blank", "", Appearance::light), "class=\"light\""));
}

TEST(StandIn, TakesNoTagFromTheAddress) {
    const std::string hostile = "\"'><script>alert(1)</script><img/src=x/onerror=alert(1)>";
    const std::vector<std::string> ordinary = tagsOf(standIn("https://a.example/?q=1&b=2"));
    EXPECT_EQ(tagsOf(standIn("https://a.example/?q=" + hostile + "&b=2")), ordinary);
    EXPECT_EQ(tagsOf(standIn("https://a.example/?q=%3Cscript%3E&%3Cb%3E=%22%3E%3Cimg%3E")),
              ordinary);
    for (const std::string& address :
         {"data:text/html," + hostile, hostile, "javascript:" + hostile}) {
        EXPECT_EQ(tagsOf(standIn(address)), tagsOf(standIn("about:blank"))) << address;
    }
}

TEST(StandIn, StaysSmallWhateverTheAddress) {
    std::string huge = "https://a.example/?q=" + std::string(20'000, 'q');
    for (int value = 0; value < 100; ++value) {
        huge += "&name" + std::to_string(value) + "=" + std::string(100, 'v');
    }
    EXPECT_LT(standIn(huge).size(), 6'000U);
    EXPECT_LT(standIn(std::string(2'000'000, '<')).size(), 12'000U);
}

TEST(FramePage, IsOneFrameWithTheAddress) {
    const std::string page = framePage("https://a.example/?q=\"><script>&b=1");
    EXPECT_TRUE(has(page, "src=\"https://a.example/?q=&quot;&gt;&lt;script&gt;&amp;b=1\"")) << page;
    EXPECT_EQ(std::ranges::count_if(
                  tagsOf(page), [](const std::string& tag) { return tag.starts_with("<iframe "); }),
              1);
    EXPECT_TRUE(has(page, "sandbox=\"allow-scripts allow-forms\""));
    EXPECT_FALSE(has(page, "allow-same-origin"));
    EXPECT_TRUE(has(page, "referrerpolicy=\"no-referrer\""));
}

TEST(FramePage, MayLoadItsSiteAndNothingElse) {
    EXPECT_TRUE(framePolicy("https://a.example").ends_with("frame-src https://a.example"));
    for (const std::string& policy : {standInPolicy(), framePolicy("https://a.example")}) {
        EXPECT_TRUE(policy.starts_with("default-src 'none'; ")) << policy;
        EXPECT_TRUE(has(policy, "; sandbox")) << policy;
        EXPECT_TRUE(has(policy, "frame-ancestors 'self'")) << policy;
        EXPECT_FALSE(has(policy, "script-src")) << policy;
        EXPECT_FALSE(has(policy, "allow-same-origin")) << policy;
    }
}

} // namespace
