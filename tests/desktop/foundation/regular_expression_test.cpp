// Finding patterns in texts of any units.
#include "desktop/foundation/regular_expression.hpp"

#include "bindings/foundation/regular_expression.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/string.hpp"

#include <gtest/gtest.h>

using namespace ns::literals;

namespace {

class RegularExpression : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::foundation::installStrings();
        desktop::foundation::installRegularExpressions();
    }
    static std::vector<ns::Range> found(std::u16string_view pattern, std::u16string_view text,
                                        ns::Range range) {
        std::vector<ns::Range> ranges;
        const auto made = ns::RegularExpression::withPattern(ns::String::from(pattern));
        for (const ns::TextCheckingResult match :
             made.value.matches(ns::String::from(text), range)) {
            ranges.push_back(match.range());
        }
        return ranges;
    }
    objc::Pool pool;
};

using Ranges = std::vector<ns::Range>;

TEST_F(RegularExpression, FindsAllMatchesInThePart) {
    EXPECT_EQ(found(u"a+", u"aa b a", {0, 6}), (Ranges{{0, 2}, {5, 1}}));
    EXPECT_EQ(found(u"a+", u"aa b a", {1, 4}), (Ranges{{1, 1}}));
    EXPECT_EQ(found(u"c", u"aa b a", {0, 6}), Ranges{});
}

TEST_F(RegularExpression, SeesTextBesideHalfASurrogatePair) {
    EXPECT_EQ(found(u"\\bname\\b", u"name \xD83D", {0, 6}), (Ranges{{0, 4}}));
}

TEST_F(RegularExpression, TellsGroupsThatDidNotTakePart) {
    const auto made = ns::RegularExpression::withPattern(u"(a)|(b)"_ns);
    const auto match = made.value.matches(u"b"_ns, {0, 1}).at(0);
    EXPECT_EQ((match.send<"rangeAtIndex:", ns::Range>(2UL)), (ns::Range{0, 1}));
    EXPECT_EQ((match.send<"rangeAtIndex:", ns::Range>(1UL)).length, 0U);
}

} // namespace
