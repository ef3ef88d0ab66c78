// Options: what may be combined, and what combining does.
#include "bindings/objc/options.hpp"

#include <gtest/gtest.h>

namespace corners {

using objc::operator|, objc::operator&, objc::operator~;

enum class Corners : unsigned long { none = 0, left = 1, right = 2, far = 1UL << 40U };
constexpr bool areOptions(Corners) { return true; }

enum class Kind : unsigned long { round = 1, square = 2 };

} // namespace corners

namespace {

using corners::Corners;

static_assert(objc::Options<Corners>);
static_assert(!objc::Options<corners::Kind>, "an enumeration is no set of options unasked");
static_assert(!objc::Options<unsigned long>);

TEST(Options, AreCombinedAndTakenAway) {
    const Corners both = Corners::left | Corners::far;
    EXPECT_TRUE(objc::haveAny(both, Corners::far));
    EXPECT_TRUE(objc::haveAny(both, Corners::right | Corners::left));
    EXPECT_FALSE(objc::haveAny(both, Corners::right));
    EXPECT_FALSE(objc::haveAny(both, Corners::none));
    EXPECT_EQ(both & ~Corners::far, Corners::left);
    EXPECT_EQ(static_cast<unsigned long>(~Corners::none), ~0UL) << "unknown bits stay";
}

} // namespace
