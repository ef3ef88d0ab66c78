// Escapes of UTF-16 units, and that they are resolved as the platform's reader of old property
// lists does it.
#include "library/toolbox/text_tools/unicode_escapes.hpp"

#include "bindings/foundation/data.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/property_list_serialization.hpp"
#include "desktop/foundation/string.hpp"
#include "library/common/occurrences.hpp"
#include "library/common/text_encoding.hpp"

#include <gtest/gtest.h>

#include <random>

namespace wentra::toolbox {
namespace {

TEST(UnicodeEscapes, HaveNoZerosBeforeThem) {
    EXPECT_EQ(unicodeEscapes(u"A\n中😀"), u"\\u41\\ua\\u4e2d\\ud83d\\ude00");
    EXPECT_EQ(unicodeEscapes(std::u16string(1, u'\0') + u"\uFFFF\u0100"), u"\\u0\\uffff\\u100");
    EXPECT_EQ(unicodeEscapes(u""), u"");
    EXPECT_TRUE(hasUnicodeEscapes(u"a\\u"));
    EXPECT_FALSE(hasUnicodeEscapes(u"a\\Uu\\"));
}

TEST(UnicodeEscapes, AreResolved) {
    const std::pair<std::u16string_view, std::u16string> cases[]{
        {u"\\u4e2d\\u6587", u"中文"},
        {u"\\u4E2Dd\\u41g", u"中dAg"},
        {u"\\ud83d\\ude00", u"😀"},
        {u"\\u", std::u16string(1, u'\0')},
        {u"a\\tb\\101\\x\\\\", u"a\tbAx\\"},
        {u"a\\\\r\\\\nb", u"a\nb"},
        {u"a\\\"b", u"a\"b"},
        {u"a\" /**/ // b", u"a"},
        {u"a\" /* b", u"a"},
        {u"", u""},
    };
    for (const auto& [text, resolved] : cases) {
        EXPECT_EQ(withoutUnicodeEscapes(text), resolved) << testing::PrintToString(text);
    }
}

TEST(UnicodeEscapes, OfNoTextAreNothing) {
    for (const std::u16string_view text :
         {u"a\"b", u"\"", u"a\\", u"\\\\\\", u"a\" // b\n", u"\xD800",
          u"\xDC00"
          u"a"}) {
        EXPECT_EQ(withoutUnicodeEscapes(text), std::nullopt) << testing::PrintToString(text);
    }
}

/// The same by Foundation, which reads the text as a property list.
std::optional<std::u16string> byPropertyList(std::u16string_view text) {
    std::u16string quoted(text);
    replaceAll(quoted, u"\\u", u"\\U");
    quoted = u"\"" + quoted + u"\"";
    const auto data = ns::Data::from(utf8FromUtf16(quoted));
    const auto resolved = ns::PropertyListSerialization::propertyList(data).value.as<ns::String>();
    if (!resolved) {
        return std::nullopt;
    }
    std::u16string plain = resolved.utf16();
    replaceAll(plain, u"\\r\\n", u"\n");
    return plain;
}

TEST(UnicodeEscapes, OfRandomTextAreResolvedAsInPropertyLists) {
    const objc::Pool pool;
    desktop::foundation::installStrings();
    desktop::foundation::installPropertyListSerialization();
    constexpr std::u16string_view units = u"\\\\\\\\uuU4e2dF\"/*rn01x 中\n";
    std::mt19937 random(7);
    std::uniform_int_distribution<std::size_t> unit(0, units.size() - 1);
    std::size_t texts = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::u16string text(random() % 12, u'\0');
        std::ranges::generate(text, [&] { return units[unit(random)]; });
        const auto resolved = withoutUnicodeEscapes(text);
        ASSERT_EQ(resolved, byPropertyList(text)) << testing::PrintToString(text);
        texts += resolved ? 1U : 0U;
    }
    EXPECT_GT(texts, 1000U);
}

} // namespace
} // namespace wentra::toolbox
