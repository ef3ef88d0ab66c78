// Old property lists, by the platform's reader.
#include "desktop/foundation/old_property_list.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/string.hpp"

#include <gtest/gtest.h>

namespace desktop::foundation {
namespace {

class OldPropertyList : public testing::Test {
protected:
    static void SetUpTestSuite() { installStrings(); }

    objc::Pool pool;
};

std::u16string textOf(std::string_view list) {
    return oldPropertyList(list).as<ns::String>().utf16();
}

TEST_F(OldPropertyList, ResolvesEscapes) {
    const std::pair<std::string_view, std::u16string> cases[]{
        {R"("a\U4e2d\U22")", u"a中\""},    {R"("\101\1012")", u"AA2"}, {R"('it"s')", u"it\"s"},
        {R"("\n\t\"\x\\")", u"\n\t\"x\\"}, {R"("\Ud83d")", u"\xD83D"}, {R"("\341")", u"Æ"},
        {"/* a */ plain // b", u"plain"}};
    for (const auto& [list, text] : cases) {
        EXPECT_EQ(textOf(list), text) << list;
    }
}

TEST_F(OldPropertyList, HasCollectionsAndStringsFiles) {
    const auto expected = oldPropertyList("{ a = (b, 'c',); d = <0aFF>; e; }");
    EXPECT_EQ(expected.as<ns::Dictionary>().count(), 3U);
    EXPECT_TRUE(expected.isEqual(oldPropertyList("a=(b,c);\"d\"=<0a ff>; e = e;")));
    EXPECT_EQ(oldPropertyList(" \n").as<ns::Dictionary>().count(), 0U);
}

TEST_F(OldPropertyList, RefusesWhatIsMalformed) {
    for (const std::string_view list : {"\"a", "\"a\\\"", "a b", "{a=b}", "{a=b;", "(a b)", "(a",
                                        "<0>", "<0g>", "{=a;}", "a;;", "\"\xFF\"", "\"a\" b"}) {
        EXPECT_FALSE(oldPropertyList(list)) << list;
    }
}

} // namespace
} // namespace desktop::foundation
