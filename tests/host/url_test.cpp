// URLs as the phone reads them, and opening them.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using nlohmann::json;

TEST(Urls, AQueryMayFollowTheHost) {
    support::HostProcess host = tests::automatedHost({"--app", "plain"});
    const json application = host.message({{"class", "UIApplication"}}, "sharedApplication");
    for (const auto& [text, by] :
         std::vector<std::array<const char*, 2>>{{"twitter://search?query=a%20b", "Twitter"},
                                                 {"taobao://s/?q=1", "淘宝"},
                                                 {"apt-repo://a", "Saily"},
                                                 {"weixin:", "weixin"}}) {
        const json url = host.message({{"class", "NSURL"}}, "URLWithString:", {text});
        ASSERT_EQ(url, (json{{"url", text}}));
        EXPECT_EQ(host.message(application, "openURL:", {url}), true);
        EXPECT_EQ(host.result({{"do", "events"}}),
                  json::array({{{"kind", "openURL"}, {"url", text}, {"by", by}}}));
    }
    const json url{{"url", "http://a.b?c=d"}};
    EXPECT_EQ(host.message(url, "query"), "c=d");
    EXPECT_EQ(host.message(url, "host"), "a.b");
    EXPECT_EQ(host.message({{"class", "NSURL"}}, "URLWithString:", {"a b"}), nullptr);
}

} // namespace
