// Taking the query of a target apart.
#include "desktop/services/query.hpp"

#include <gtest/gtest.h>

namespace {

using namespace desktop::services;

TEST(Query, IsDecodedByteByByte) {
    const auto query = queryOf("/p?a=%E4%BD%A0&b=x+y%2Bz&broken=100%&half=%4&empty=&flag&a%3D=1");
    const std::map<std::string, std::string> expected{
        {"a", "你"},   {"b", "x y+z"}, {"broken", "100%"}, {"half", "%4"},
        {"empty", ""}, {"flag", ""},   {"a=", "1"}};
    EXPECT_EQ(query, expected);
    EXPECT_EQ(pathOf("/p?a"), "/p");
    EXPECT_TRUE(queryOf("/p").empty());
    EXPECT_TRUE(queryOf("").empty());
}

TEST(Query, ARestIsAllBehindItsName) {
    EXPECT_EQ(restBehind("/p?url=https://a.b/c?d=e&f=g+h", "url"), "https://a.b/c?d=e&f=g+h");
    EXPECT_EQ(restBehind("/p?url=https%3A%2F%2Fa.b%2F%E4%BD%A0%2", "url"), "https://a.b/你%2");
    EXPECT_EQ(restBehind("/p?x=1&url=a&url=b", "url"), "a&url=b");
    for (const char* without : {"", "/p", "/p?", "/p?curl=a", "/p?url", "/p?urls=a", "/url=a"}) {
        EXPECT_EQ(restBehind(without, "url"), "") << without;
    }
}

} // namespace
