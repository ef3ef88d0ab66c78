// Requests of an application that has the library loaded.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;

class Requests : public testing::Test {
protected:
    Json request(const std::string& url) {
        return phone.message({{"class", "NSURLRequest"}}, "requestWithURL:", {{{"url", url}}});
    }
    /// Where the request goes to that has been made since the last question.
    std::string requested() {
        phone.result({{"do", "wait"}, {"for", {{"event", "request"}}}, {"seconds", 30}});
        return phone.events("request").at(0)["url"];
    }

    tests::Phone phone;
};

TEST_F(Requests, AddressesAreReadAsTheyStand) {
    const Json url{{"url", "https://example.com/a?b=c"}};
    EXPECT_EQ(phone.message({{"class", "NSURL"}}, "URLWithString:", {url["url"]}), url);
    EXPECT_EQ(phone.message({{"class", "NSURL"}}, "URLWithString:", {"a b"}), nullptr);
}

TEST_F(Requests, ASessionLoadsWhatItIsAskedFor) {
    const Json session = phone.message({{"class", "NSURLSession"}}, "sharedSession");
    const std::string plain = "https://example.com/plain";
    phone.message(phone.message(session, "dataTaskWithRequest:", {request(plain)}), "resume");
    EXPECT_EQ(requested(), plain);
    const std::string handled = "https://example.com/handled";
    phone.message(phone.message(session, "dataTaskWithRequest:completionHandler:",
                                {request(handled), nullptr}),
                  "resume");
    EXPECT_EQ(requested(), handled);
}

TEST_F(Requests, AConnectionLoadsWhatItIsAskedFor) {
    const std::string url = "https://example.com/connection";
    const Json asked = request(url);
    EXPECT_EQ(phone.message({{"class", "NSURLConnection"}}, "canHandleRequest:", {asked}), true);
    EXPECT_NE(phone.message({{"class", "NSURLConnection"}},
                            "connectionWithRequest:delegate:", {asked, nullptr}),
              nullptr);
}

TEST_F(Requests, AWebViewLoadsWhatItIsAskedFor) {
    const Json web = phone.make("WKWebView");
    const std::string url = "https://example.com/page";
    EXPECT_NE(phone.message(web, "loadRequest:", {request(url)}), nullptr);
    EXPECT_EQ(phone.message(web, "URL"), (Json{{"url", url}}));
    EXPECT_TRUE(phone.swallowed().empty());
}

} // namespace
