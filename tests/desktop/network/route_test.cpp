// Where requests may go.
#include "desktop/network/route.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using namespace desktop::network;

/// Who answers a request to that URL, or the failure's number.
std::string route(const std::string& url) {
    const auto target = targetOf(url);
    if (const auto* failure = std::get_if<LoadFailure>(&target)) {
        return std::to_string(static_cast<long>(*failure));
    }
    return std::string(answeredBy(routeTo(std::get<Target>(target))));
}

TEST(Route, LeadsNowhereButToThisMachine) {
    struct Case {
        const char* url;
        const char* route;
    };
    constexpr std::array cases{
        Case{"https://fanyi-api.baidu.com/api", "loopback"},
        Case{"HTTPS://FANYI-API.Baidu.com:443/api", "loopback"},
        Case{"http://fanyi-api.baidu.com/api", "nobody"},    // not over TLS
        Case{"https://fanyi-api.baidu.com:8443/", "nobody"}, // not its port
        Case{"https://fanyi-api.baidu.com.evil/", "nobody"},
        Case{"http://localhost:8080/", "local"},
        Case{"http://127.0.0.1", "local"},
        Case{"http://2130706433/", "local"}, // 127.0.0.1 in one number
        Case{"http://[::1]:80/", "local"},
        Case{"http://127.0.0.1.evil.example/", "nobody"},
        Case{"http://127.evil/", "nobody"},
        Case{"http://user@example.com@localhost/", "-1000"},
        Case{"http://localhost@example.com/", "nobody"},
        Case{"https://example.com/", "nobody"},
        Case{"http://192.168.1.1/", "nobody"},
        Case{"http://[2001:db8::1]/", "nobody"},
        Case{"ftp://localhost/", "-1002"},
        Case{"file:///etc/passwd", "-1002"},
        Case{"", "-1000"},
        Case{"http://", "-1000"},
        Case{"no url at all", "-1000"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(route(c.url), c.route) << c.url;
    }
}

} // namespace
