// Percent encoding, as the phone has it.
#include "desktop/foundation/percent_encoding.hpp"

#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

namespace desktop::foundation {
namespace {

using namespace ns::literals;

TEST(PercentEncoding, LeavesAsciiAlone) {
    EXPECT_EQ(percentEncodedBeyondAscii("a%/?中"), "a%/?%E4%B8%AD");
    EXPECT_EQ(percentEncodedBeyondAscii(""), "");
}

TEST(PercentEncoding, IsRemovedOnlyWhereItIsWhole) {
    const objc::Pool pool;
    installPercentEncoding();
    EXPECT_EQ(u"%E4%b8%ad+"_ns.removingPercentEncoding().utf16(), u"中+");
    for (const ns::String broken : {u"%"_ns, u"100%"_ns, u"%4"_ns, u"%zz"_ns, u"%41%"_ns}) {
        EXPECT_FALSE(broken.removingPercentEncoding()) << broken.utf8();
    }
}

} // namespace
} // namespace desktop::foundation
