// The secret in the address, and what Host and Origin may say.
#include "desktop/viewer/access.hpp"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace desktop::viewer;

TEST(Access, TokensAreLongAndNeverTheSame) {
    std::set<std::string> tokens;
    for (int i = 0; i < 100; ++i) {
        const std::string token = freshToken();
        EXPECT_EQ(token.size(), 32U);
        EXPECT_EQ(token.find_first_not_of("0123456789abcdef"), std::string::npos) << token;
        tokens.insert(token);
    }
    EXPECT_EQ(tokens.size(), 100U);
}

TEST(Access, OnlyTheWholeTokenOpens) {
    const std::string token = "0123456789abcdef0123456789abcdef";
    EXPECT_STREQ(afterToken("/" + token + "/", token), "");
    EXPECT_STREQ(afterToken("/" + token + "/panels/rules.js", token), "panels/rules.js");
    std::string other = token;
    other.back() = 'e';
    for (const std::string& path : {std::string(), std::string("/"), std::string("//"), "/" + token,
                                    token + "/", "/" + token.substr(1) + "/", "/" + token + "0/",
                                    "/" + other + "/", "/x/../" + token + "/"}) {
        EXPECT_EQ(afterToken(path, token), nullptr) << path;
    }
}

TEST(Access, TheTokenMayStandAlone) {
    const std::string token = "0123456789abcdef0123456789abcdef";
    EXPECT_TRUE(isTokenAlone("/" + token, token));
    for (const std::string& path :
         {std::string(), std::string("/"), token, "/" + token + "/", "//" + token}) {
        EXPECT_FALSE(isTokenAlone(path, token)) << path;
    }
}

TEST(Access, OnlyNamesOfThisMachineAreServed) {
    for (const char* host : {"127.0.0.1:8080", "localhost:1", "localhost", "[::1]:80", "[::1]"}) {
        EXPECT_TRUE(isLoopbackHost(host)) << host;
    }
    for (const char* host : {"", ":80", "evil.example:8080", "127.0.0.1.evil.example",
                             "127.0.0.1:8080.evil.example", "localhost:", "localhost:80x",
                             "LOCALHOST.example", "[::1", "user@localhost:80", "127.0.0.1:80:80"}) {
        EXPECT_FALSE(isLoopbackHost(host)) << host;
    }
}

TEST(Access, PagesFromElsewhereMayNotConnect) {
    EXPECT_TRUE(isSameOrigin("http://127.0.0.1:80", "127.0.0.1:80"));
    for (const char* origin : {"", "null", "http://127.0.0.1:81", "https://127.0.0.1:80",
                               "http://evil.example", "http://127.0.0.1:80.evil.example"}) {
        EXPECT_FALSE(isSameOrigin(origin, "127.0.0.1:80")) << origin;
    }
}

} // namespace
