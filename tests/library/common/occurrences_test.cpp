// Searching with and without regard to case, and replacing.
#include "library/common/occurrences.hpp"

#include "library/common/case_insensitive_search.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include <random>

namespace wentra {
namespace {

using namespace ns::literals;
using Places = std::vector<ns::Range>;

TEST(Occurrences, DoNotOverlap) {
    EXPECT_EQ(occurrences(u"aaaaa", u"aa"), (Places{{0, 2}, {2, 2}}));
    EXPECT_EQ(occurrences(u"Hello hello", u"hello"), (Places{{6, 5}}));
    EXPECT_EQ(occurrences(u"😀a😀", u"😀"), (Places{{0, 2}, {3, 2}}));
    EXPECT_EQ(occurrences(u"a", u""), Places{});
    EXPECT_EQ(occurrences(u"", u"a"), Places{});
}

TEST(Occurrences, AreFoundAnywhereInLongTexts) {
    constexpr std::size_t longest = 300;
    const std::u16string_view sought = u"ab";
    for (std::size_t before = 0; before < longest; ++before) {
        const std::u16string text = std::u16string(before, u'a') + u"aAb" + std::u16string(2, u'b');
        EXPECT_EQ(occurrences(text, sought), Places{}) << before;
        const auto longer = std::u16string(text).append(u"ab").append(longest - before, u'b');
        EXPECT_EQ(occurrences(longer, sought), (Places{{text.size(), 2}})) << before;
    }
}

TEST(Occurrences, AreThoseThatAPlainSearchFinds) {
    std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    for (int round = 0; round < 2000; ++round) {
        std::u16string text(random() % 120, u'a');
        for (char16_t& unit : text) {
            unit = u"aaaaaaAbB\xFF61\xFF41"[random() % 11];
        }
        const std::u16string sought = text.substr(0, random() % 4 + 1) + (round % 2 ? u"b" : u"");
        Places expected;
        for (std::size_t place = text.find(sought); place != text.npos && !sought.empty();
             place = text.find(sought, place + sought.size())) {
            expected.push_back({place, sought.size()});
        }
        ASSERT_EQ(occurrences(text, sought), expected) << round;
    }
}

TEST(Occurrences, AreThoseThatAPlainSearchFindsInLowerCase) {
    std::mt19937 random(5); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    const auto lower = [](std::u16string text) {
        for (char16_t& unit : text) {
            unit = unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
        }
        return text;
    };
    for (int round = 0; round < 2000; ++round) {
        std::u16string text(random() % 120 + 1, u'a');
        for (char16_t& unit : text) {
            unit = u"aAzZ@`[{\xFF21\xFF41"[random() % 10];
        }
        std::u16string sought = text.substr(0, random() % 4 + 1);
        sought.front() = u"aAzZ@`[{"[random() % 8];
        const std::size_t expected = lower(text).find(lower(sought));
        const Places found = occurrences(text, sought, LetterCase::ignored);
        ASSERT_EQ(found.empty() ? text.npos : found.front().location, expected) << round;
    }
}

TEST(Occurrences, GiveWayInTextsOfAnyLength) {
    std::mt19937 random(3); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    for (std::size_t length = 0; length < 200; ++length) {
        std::u16string text(length, u'a');
        for (char16_t& unit : text) {
            unit = u"aaaaaaaaaab"[random() % 11];
        }
        for (const std::u16string_view put : {u"", u"cc"}) {
            std::u16string replaced = text;
            replaceAll(replaced, u"b", put);
            std::u16string expected;
            for (const char16_t unit : text) {
                expected += unit == u'b' ? put : std::u16string_view(&unit, 1);
            }
            ASSERT_EQ(replaced, expected);
        }
    }
}

TEST(Occurrences, AreReplacedInOnePass) {
    std::u16string text = u"aaXaX";
    replaceAll(text, u"aa", u"aaa");
    EXPECT_EQ(text, u"aaaXaX");
    replaceAll(text, u"X", u"");
    EXPECT_EQ(text, u"aaaa");
    replaceAll(text, u"", u"b");
    EXPECT_EQ(text, u"aaaa");
    replaceAll(text, u"a", u"");
    EXPECT_EQ(text, u"");
    replaceAll(text, u"a", u"");
    EXPECT_EQ(text, u"");
}

using CaseInsensitiveSearch = tests::UIKitTest;

TEST_F(CaseInsensitiveSearch, FindsEveryCase) {
    EXPECT_EQ(occurrencesIgnoringCase(u"Hello hello 世 HELLO"_ns, u"hello"_ns),
              (Places{{0, 5}, {6, 5}, {14, 5}}));
    EXPECT_EQ(occurrencesIgnoringCase(u"aAaAa"_ns, u"AA"_ns), (Places{{0, 2}, {2, 2}}));
    EXPECT_EQ(occurrencesIgnoringCase(u"a"_ns, u""_ns), Places{});
    EXPECT_EQ(occurrencesIgnoringCase(u"a"_ns, nullptr), Places{});
    EXPECT_EQ(occurrencesIgnoringCase(nullptr, u"a"_ns), Places{});
}

} // namespace
} // namespace wentra
