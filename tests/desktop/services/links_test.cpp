// What lies behind the links to short videos.
#include "desktop/services/links/links.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace desktop::services;
using nlohmann::json;

Answer answerFor(const std::string& link) {
    return links::answerTo("/api/video/douyin/?url=" + link);
}

std::vector<std::string> keysOf(const json& data) {
    std::vector<std::string> keys;
    for (const auto& [key, address] : data.items()) {
        EXPECT_TRUE(address.get<std::string>().starts_with("https://")) << key;
        keys.push_back(key);
    }
    return keys;
}

TEST(Links, AWholeVideoHasFourAddressesAndAPartOfThemTwo) {
    using Keys = std::vector<std::string>;
    for (const char* link : {"https://v.douyin.com/whole/", "https%3A//v.douyin.com/whole%2F"}) {
        EXPECT_EQ(keysOf(json::parse(answerFor(link).body).at("data")),
                  (Keys{"cover", "music_cover", "music_url", "url"}))
            << link;
    }
    const Answer part = answerFor("https://v.douyin.com/part/");
    EXPECT_EQ(keysOf(json::parse(part.body).at("data")), (Keys{"cover", "url"}));
    EXPECT_EQ(part.status, 200);
}

TEST(Links, AVideoThatIsGoneIsAnError) {
    const Answer gone = answerFor("https://v.douyin.com/gone/");
    EXPECT_EQ(gone.status, 404);
    EXPECT_TRUE(json::parse(gone.body).at("error").is_string());
}

TEST(Links, OtherLinksHaveNoData) {
    for (const char* link : {"", "douyinsharesdk://", "https://v.douyin.com/whole",
                             "https://v.douyin.com/whole/&x=1"}) {
        const Answer answer = answerFor(link);
        EXPECT_EQ(json::parse(answer.body), (json{{"data", nullptr}})) << link;
        EXPECT_EQ(answer.status, 200);
    }
    EXPECT_EQ(links::answerTo("/api/video/other/?url=https://v.douyin.com/whole/").status, 404);
}

} // namespace
