// Links in texts, as the phone finds them.
#include "desktop/foundation/link_detection.hpp"

#include <gtest/gtest.h>

namespace desktop::foundation {
namespace {

using Urls = std::vector<std::u16string>;

Urls urlsIn(std::u16string_view text) {
    Urls urls;
    for (const DetectedLink& link : detectLinks(text)) {
        urls.push_back(link.url);
    }
    return urls;
}

TEST(LinkDetection, FindsSchemesHostsAndAddresses) {
    const std::pair<std::u16string_view, Urls> cases[]{
        {u"看https://a.example/b?c=1#d。再看", {u"https://a.example/b?c=1#d"}},
        {u"taobao://item?id=1 filza://x", {u"taobao://item?id=1", u"filza://x"}},
        {u"www.example", {u"http://www.example"}},
        {u"在apple.com看", {u"http://apple.com"}},
        {u"apple.com:8080/a, apple.co.uk?q=1.",
         {u"http://apple.com:8080/a", u"http://apple.co.uk?q=1"}},
        {u"Apple.COM", {u"http://Apple.COM"}},
        {u"a.b+c@mail.example.com!", {u"mailto:a.b+c@mail.example.com"}},
        {u"mailto:x@y.org", {u"mailto:x@y.org"}},
        {u"https://v.douyin.com/abc/ 复制", {u"https://v.douyin.com/abc/"}},
        {u"(https://a.example/b_(c)) [www.a.com]",
         {u"https://a.example/b_(c)", u"http://www.a.com"}},
        {u"“https://a.example”、http://b.example）", {u"https://a.example", u"http://b.example"}},
    };
    for (const auto& [text, urls] : cases) {
        EXPECT_EQ(urlsIn(text), urls) << testing::PrintToString(text);
    }
}

TEST(LinkDetection, FindsNoneInOtherText) {
    for (const std::u16string_view text :
         {u"",      u"a.b",  u"file.txt", u"1.2.3",   u"v1.com2", u"://",    u"://x",
          u"1://x", u"a://", u"a:/b",     u"x_a.com", u"x/a.com", u"@a.com", u"@",
          u"a@",    u"a@b",  u"..com",    u"-a..com", u"www.",    u".com",   u"12:30"}) {
        EXPECT_EQ(urlsIn(text), Urls{}) << testing::PrintToString(text);
    }
}

TEST(LinkDetection, TellsWhereTheLinksStand) {
    const auto links = detectLinks(u"中文 www.a.com, b.org");
    ASSERT_EQ(links.size(), 2U);
    EXPECT_EQ(links[0].range.location, 3U);
    EXPECT_EQ(links[0].range.length, 9U);
    EXPECT_EQ(links[1].range.location, 14U);
}

TEST(LinkDetection, IsQuickOnHostileText) {
    constexpr std::size_t length = 1'000'000;
    const auto repeated = [](std::u16string_view part) {
        std::u16string text;
        while (text.size() < length) {
            text += part;
        }
        return text;
    };
    for (const std::u16string_view part :
         {u".", u"a.", u"a@", u"a:", u"://", u"a://)", u"(", u"-."}) {
        EXPECT_LE(detectLinks(repeated(part)).size(), length);
    }
    EXPECT_EQ(detectLinks(u"a://" + repeated(u")")).size(), 0U);
}

} // namespace
} // namespace desktop::foundation
