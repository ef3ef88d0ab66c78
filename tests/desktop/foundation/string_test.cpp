// Strings of units that are no text of their own.
#include "desktop/foundation/string.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/binary_property_list.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace {

using namespace std::string_view_literals;

class StringUnits : public testing::Test {
protected:
    static void SetUpTestSuite() { desktop::foundation::installStrings(); }

    objc::Pool pool;
};

constexpr std::u16string_view texts[] = {
    u""sv,         u"a\xD83D"sv,      u"\xDE00z"sv, u"\xDE00\xD83D"sv, u"\xD83D\xD83D\xDE00"sv,
    u"\uFEFFab"sv, u"\xFFFE\x6100"sv, u"\uFEFF"sv,  u"a\uFEFF"sv,      u"a\0b"sv,
    u"😀"sv,
};

TEST_F(StringUnits, AreKeptWhateverTheyAre) {
    for (const std::u16string_view text : texts) {
        const auto string = ns::String::from(text);
        ASSERT_TRUE(string);
        EXPECT_EQ(string.utf16(), text);
        EXPECT_EQ(objc::Strong<ns::String>(objc::Copied<ns::String>(string)).autoreleased().utf16(),
                  text);
        EXPECT_TRUE(string.isEqualToString(ns::String::from(text)));
        EXPECT_EQ((string.send<"hash", unsigned long>()),
                  (ns::String::from(text).send<"hash", unsigned long>()));
    }
}

TEST_F(StringUnits, AreTakenAndGivenOutByMutableStringsToo) {
    for (const std::u16string_view text : texts) {
        const auto string = ns::MutableString::make<"initWithCharacters:length:">(
            text.data(), static_cast<unsigned long>(text.size()));
        EXPECT_EQ(string.utf16(), text);
        string.send<"appendString:">(ns::String::from(text));
        EXPECT_EQ(string.length(), 2 * text.size());
        const auto half =
            string.send<"substringWithRange:", ns::String>(ns::Range{text.size(), text.size()});
        EXPECT_EQ(half.utf16(), text);
    }
    const auto emoji = ns::MutableString::make<"initWithString:">(ns::String::from(u"a😀"));
    EXPECT_EQ((emoji.send<"substringFromIndex:", ns::String>(2UL).utf16()), u"\xDE00");
}

TEST_F(StringUnits, AreKeptInBinaryPropertyLists) {
    for (const std::u16string_view text : texts) {
        const auto entries = ns::MutableDictionary::make();
        entries.set(ns::String::from(text), ns::String::from(text));
        const std::string file = desktop::foundation::binaryPropertyList(entries);
        EXPECT_TRUE(ns::PropertyListSerialization::propertyList(ns::Data::from(file))
                        .value.isEqual(entries));
    }
}

TEST_F(StringUnits, HaveUtf8OnlyWhenTheyAreText) {
    EXPECT_EQ(ns::String::from(u"\uFEFFé").utf8(), "\uFEFFé");
    EXPECT_EQ(ns::String::from(u"\uFFFEé").utf8(), "\uFFFEé");
    EXPECT_EQ(ns::String::from(u"é😀").utf8(), "é😀");
    EXPECT_EQ((ns::String::from(u"é\xD83D").send<"UTF8String", const char*>()), nullptr);
    EXPECT_EQ((ns::String::from(u"\xDE00").send<"UTF8String", const char*>()), nullptr);
}

TEST_F(StringUnits, AByteOrderMarkInUtf8IsACharacter) {
    for (const std::string text : {"\uFEFF", "\uFEFFab", "\uFEFF\uFEFF文", "a\uFEFF"}) {
        EXPECT_EQ(ns::String::fromUtf8(text).utf8(), text);
        const auto changeable = ns::MutableString::make<"initWithBytes:length:encoding:">(
            static_cast<const void*>(text.data()), static_cast<unsigned long>(text.size()),
            ns::StringEncoding::utf8);
        EXPECT_EQ(changeable.utf8(), text);
    }
    EXPECT_EQ(ns::String::fromUtf8("\uFEFFab").length(), 3U);
    EXPECT_FALSE(ns::String::fromUtf8("\uFEFF\xFF"));
}

TEST_F(StringUnits, AByteOrderMarkOfAFileIsNoCharacter) {
    const support::TemporaryFolder folder;
    folder.write("marked.txt", "\uFEFFé");
    const auto path = ns::String::fromUtf8((folder.path() / "marked.txt").string());
    EXPECT_EQ((ns::String::sendClass<"stringWithContentsOfFile:", ns::String>(path).utf8()), "é");
    void* const nowhere = nullptr;
    EXPECT_EQ((ns::String::sendClass<"stringWithContentsOfFile:encoding:error:", ns::String>(
                   path, ns::StringEncoding::utf8, nowhere)
                   .utf8()),
              "é");
}

TEST_F(StringUnits, AreWhatEqualityIsAbout) {
    const std::u16string text = std::u16string(100, u'广') + u"e\u0301";
    EXPECT_TRUE(ns::String::from(text).isEqual(ns::String::from(text)));
    EXPECT_FALSE(ns::String::from(text).isEqual(ns::String::from(text + u"x")));
    EXPECT_FALSE(ns::String::from(text).isEqual(ns::String::from(u"x" + text.substr(1))));
    EXPECT_FALSE(ns::String::from(text).isEqual(ns::String::from(text.substr(0, 101) + u"x")));
    EXPECT_FALSE(ns::String::from(u"广e\u0301").isEqual(ns::String::from(u"广\u00E9")));
    EXPECT_FALSE(ns::String::from(text).isEqual(nullptr));
    const auto composed = ns::String::from(u"\u00E9");
    const auto parts = ns::String::from(u"e\u0301");
    const auto mutableParts = ns::MutableString::make<"initWithString:">(parts);
    EXPECT_TRUE(parts.isEqualToString(parts) && composed.isEqualToString(composed));
    EXPECT_TRUE(mutableParts.isEqualToString(parts) && parts.isEqualToString(mutableParts));
    EXPECT_FALSE(parts.isEqual(composed));
    EXPECT_FALSE(parts.isEqualToString(composed));
    EXPECT_FALSE(composed.isEqualToString(parts));
    EXPECT_FALSE(composed.isEqualToString(mutableParts));
    EXPECT_FALSE(mutableParts.isEqualToString(composed));
    EXPECT_FALSE(ns::String::from(text).isEqual(ns::String::from(u"abc")));
}

} // namespace
