// Finding one of many words in an address.
#include "library/blocking/word_list.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace wentra::blocking {
namespace {

using Rule = WordList::Rule;
using WordViews = std::vector<std::u16string_view>;

TEST(WordList, APartDecidesWhereverItStands) {
    const WordList list({u"ad.", u"广告", u"track"}, Rule::part);
    for (const auto* address : {u"ad.example", u"https://ad.example/", u"https://a/广告/1",
                                u"https://a/b?c=track", u"track"}) {
        EXPECT_TRUE(list.decides(address));
    }
    for (const auto* address :
         {u"", u"ad", u"https://AD.example/", u"https://a/广 告", u"tra-ck"}) {
        EXPECT_FALSE(list.decides(address));
    }
}

TEST(WordList, TheWholeDecidesAlone) {
    const WordList list({u"ads.example", u"a"}, Rule::whole);
    EXPECT_TRUE(list.decides(u"ads.example"));
    for (const auto* host : {u"", u"www.ads.example", u"ads.example.org", u"Ads.example", u"ads"}) {
        EXPECT_FALSE(list.decides(host));
    }
}

TEST(WordList, TheEmptyWordDecidesNothing) {
    for (const Rule rule : {Rule::part, Rule::whole}) {
        const WordList list({u"", u"", u""}, rule);
        EXPECT_FALSE(list.decides(u""));
        EXPECT_FALSE(list.decides(u"https://example.com"));
        EXPECT_FALSE(WordList({}, rule).decides(u"a"));
    }
}

TEST(WordList, WordsThatBeginAlikeAreAllFound) {
    const WordList list({u"abc", u"ab", u"abd", u"b", u"ba", u"abcd"}, Rule::part);
    EXPECT_TRUE(list.decides(u"xab"));
    EXPECT_TRUE(list.decides(u"xb"));
    EXPECT_FALSE(list.decides(u"xa"));
    EXPECT_TRUE(WordList({u"abc", u"abx", u"aby"}, Rule::whole).decides(u"abx"));
}

std::u16string randomText(std::mt19937& random, std::size_t longest) {
    std::u16string text(std::uniform_int_distribution<std::size_t>(0, longest)(random), u'\0');
    std::ranges::generate(text, [&random] {
        constexpr std::u16string_view units = u"ab\xD83D\xFFFF";
        return units[std::uniform_int_distribution<std::size_t>(0, units.size() - 1)(random)];
    });
    return text;
}

TEST(WordList, FindsWhatASearchForEachWordFinds) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp,cert-msc32-c): the same texts each time
    constexpr int rounds = 3000;
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::u16string> words(5);
        std::ranges::generate(words, [&random] { return randomText(random, 4); });
        const std::u16string address = randomText(random, 8);
        const bool isIn = std::ranges::any_of(words, [&address](const std::u16string& word) {
            return !word.empty() && address.find(word) != std::u16string::npos;
        });
        EXPECT_EQ(WordList(WordViews(words.begin(), words.end()), Rule::part).decides(address),
                  isIn);
    }
}

} // namespace
} // namespace wentra::blocking
