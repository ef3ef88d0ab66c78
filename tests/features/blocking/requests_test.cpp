// Requests of an application that has the library loaded: what passes, and how what is blocked
// fails.
#include "tests/desktop/network/plain_server.hpp"
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

    Json newUrl(const Json& address) {
        return phone.message({{"class", "NSURL"}}, "URLWithString:", {address});
    }
    Json initialisedUrl(const Json& address) {
        return phone.result({{"do", "make"},
                             {"class", "NSURL"},
                             {"selector", "initWithString:"},
                             {"args", {address}}});
    }
    Json session() { return phone.message({{"class", "NSURLSession"}}, "sharedSession"); }
    /// What a request says where it goes to.
    Json urlOf(const Json& request) { return phone.message(request, "URL"); }

    const std::string thumbnails = "https://wxsnsdythumb.wxs.qq.com/a.jpg";
    const std::string otherThumbnails = "https://x.wxsnsdythumb.wxs.qq.com/a.jpg";
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
    const tests::PlainServer server([](const std::string&) {
        return "HTTP/1.1 200 OK\r\nContent-Length: 2\r\nConnection: close\r\n\r\nok";
    });
    const Json asked = request(server.url("/connection"));
    EXPECT_EQ(phone.message({{"class", "NSURLConnection"}}, "canHandleRequest:", {asked}), true);
    EXPECT_NE(phone.message({{"class", "NSURLConnection"}},
                            "connectionWithRequest:delegate:", {asked, nullptr}),
              nullptr);
    EXPECT_EQ(requested(), server.url("/connection"));
    EXPECT_EQ(phone.message({{"class", "NSData"}},
                            "dataWithContentsOfURL:", {{{"url", server.url("/data")}}}),
              (Json{{"data", "b2s="}}));
    EXPECT_EQ(requested(), server.url("/data"));
}

TEST_F(Requests, AWebViewLoadsWhatItIsAskedFor) {
    const Json web = phone.make("WKWebView");
    const std::string url = "https://example.com/page";
    EXPECT_NE(phone.message(web, "loadRequest:", {request(url)}), nullptr);
    EXPECT_EQ(phone.message(web, "URL"), (Json{{"url", url}}));
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(Requests, NewUrlsAreBlockedWhileThatIsOn) {
    const std::string address = "https://a.example/mp/getappmsgad";
    EXPECT_EQ(newUrl(address), (Json{{"url", address}}));
    phone.set({{"开启广告屏蔽", true}, {"Host过滤屏蔽", "foo,bar"}});
    EXPECT_EQ(newUrl(address), nullptr);
    EXPECT_EQ(newUrl("https://foo.example"), nullptr);
    EXPECT_EQ(newUrl("https://bar.example"), (Json{{"url", "https://bar.example"}}));
    EXPECT_EQ(newUrl(""), nullptr);
    phone.set({{"开启广告屏蔽", false}});
    EXPECT_EQ(newUrl(address), (Json{{"url", address}}));
}

TEST_F(Requests, InitialisedUrlsAreBlockedAlways) {
    EXPECT_EQ(newUrl("https://haoka.example"), (Json{{"url", "https://haoka.example"}}))
        << "one maker does not pass through the other";
    EXPECT_EQ(initialisedUrl("https://haoka.example"), (Json{{"url", "about:blank"}}));
    EXPECT_EQ(initialisedUrl("https://example.com"), (Json{{"url", "https://example.com"}}));
    phone.set({{"Host过滤屏蔽2", "foo, bar"}});
    EXPECT_EQ(initialisedUrl("https://foo.example"), (Json{{"url", "about:blank"}}));
    EXPECT_EQ(initialisedUrl("https://bar.example"), (Json{{"url", "https://bar.example"}}));
}

TEST_F(Requests, ATaskWithAHandlerIsNotMade) {
    const std::string address = "https://a.example/189xxl?q=100%25";
    EXPECT_EQ(phone.message(session(),
                            "dataTaskWithRequest:completionHandler:", {request(address), nullptr}),
              nullptr);
    std::vector<std::string> lines;
    for (const Json& event : phone.events("log")) {
        lines.push_back(event["text"]);
    }
    EXPECT_EQ(lines, std::vector<std::string>{"屏蔽的URL: " + address});
    phone.set({{"Host过滤屏蔽8", "mine"}});
    EXPECT_EQ(phone.message(session(), "dataTaskWithRequest:completionHandler:",
                            {request("https://mine.example"), nullptr}),
              nullptr);
}

TEST_F(Requests, ATaskWithoutAHandlerHasNowhereToGo) {
    const auto asked = [&](const std::string& address) {
        const Json task = phone.message(session(), "dataTaskWithRequest:", {request(address)});
        return urlOf(phone.message(task, "originalRequest"));
    };
    EXPECT_EQ(asked(thumbnails), nullptr);
    EXPECT_EQ(asked(otherThumbnails), (Json{{"url", otherThumbnails}}));
    phone.set({{"Host过滤屏蔽3", "mine.example"}});
    EXPECT_EQ(asked("https://mine.example/a"), nullptr);
    EXPECT_EQ(asked("https://www.mine.example/a"), (Json{{"url", "https://www.mine.example/a"}}));
}

TEST_F(Requests, AConnectionGoesToAHostThatIsNot) {
    const auto asked = [&](const std::string& address) {
        phone.message({{"class", "NSURLConnection"}},
                      "connectionWithRequest:delegate:", {request(address), nullptr});
        return requested();
    };
    EXPECT_EQ(asked(thumbnails), "https://blocked.invalid");
    EXPECT_EQ(asked(otherThumbnails), otherThumbnails);
    phone.set({{"Host过滤屏蔽6", "mine.example"}});
    EXPECT_EQ(asked("https://mine.example/a"), "https://blocked.invalid");
}

TEST_F(Requests, AWebViewShowsNothing) {
    const Json web = phone.make("WKWebView");
    EXPECT_EQ(phone.message(web, "loadRequest:", {request(thumbnails)}), nullptr);
    EXPECT_EQ(phone.message(web, "URL"), nullptr);
    phone.set({{"Host过滤屏蔽5", "mine.example"}});
    EXPECT_EQ(phone.message(web, "loadRequest:", {request("https://mine.example/a")}), nullptr);
    EXPECT_NE(phone.message(web, "loadRequest:", {request(otherThumbnails)}), nullptr);
    EXPECT_EQ(phone.events("webLoad").size(), 1U);
}

TEST_F(Requests, AProtocolTakesWhatIsBlocked) {
    const auto takes = [&](const Json& asked) {
        return phone.message({{"class", "NSURLProtocol"}}, "canInitWithRequest:", {asked});
    };
    EXPECT_EQ(takes(request("https://bjmantis.example")), true);
    EXPECT_EQ(takes(request("https://example.com")), false);
    EXPECT_EQ(takes(nullptr), false);
    phone.set({{"Host过滤屏蔽1", "mine"}});
    EXPECT_EQ(takes(request("https://mine.example")), true);
    const Json canonical =
        phone.message({{"class", "NSURLProtocol"}},
                      "canonicalRequestForRequest:", {request("https://example.com")});
    EXPECT_EQ(canonical["class"], "NSMutableURLRequest");
    EXPECT_EQ(urlOf(canonical), nullptr);
}

TEST_F(Requests, WhatAHookMakesPassesTheFirstOneToo) {
    phone.set({{"开启广告屏蔽", true}, {"Host过滤屏蔽", "blocked.invalid,"}});
    for (const std::string& address : {thumbnails, otherThumbnails}) {
        phone.message({{"class", "NSURLConnection"}},
                      "connectionWithRequest:delegate:", {request(address), nullptr});
    }
    EXPECT_EQ(requested(), otherThumbnails) << "the first of two is none";
}

TEST_F(Requests, AnythingElseThanARequestIsNobodysAddress) {
    phone.set({{"开启广告屏蔽", true}});
    for (const Json& other : std::vector<Json>{nullptr, "wxsnsdythumb", 7, Json::array()}) {
        for (const auto& [receiver, selector] : std::vector<std::pair<Json, std::string>>{
                 {{{"class", "NSURLProtocol"}}, "canInitWithRequest:"},
                 {{{"class", "NSURLProtocol"}}, "canonicalRequestForRequest:"}}) {
            const Json answer = phone.message(receiver, selector, {other});
            EXPECT_TRUE(answer.is_null() || answer == false) << selector << other;
        }
    }
    EXPECT_EQ(phone.message(phone.make("WKWebView"), "loadRequest:", {nullptr}), nullptr);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(Requests, AreBlockedByWhatTheFileSaysNow) {
    phone.set({{"开启广告屏蔽", true}, {"Host过滤屏蔽", "one,"}});
    EXPECT_EQ(newUrl("https://one.example"), nullptr);
    phone.set({{"Host过滤屏蔽", "two,"}});
    EXPECT_NE(newUrl("https://one.example"), nullptr);
    EXPECT_EQ(newUrl("https://two.example"), nullptr);
    phone.result({{"do", "preferences"}, {"remove", true}});
    EXPECT_NE(newUrl("https://two.example"), nullptr);
}

} // namespace
