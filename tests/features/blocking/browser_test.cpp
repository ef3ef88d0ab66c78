// The application that tries every entry point, with the library and without.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <map>

namespace {

using tests::Json;
using Rows = std::map<std::string, std::string>;

/// What stands in the three columns of each row, such as "通过屏蔽通过".
Rows rows(tests::Phone& phone) {
    EXPECT_TRUE(phone.until([&phone] { return phone.find({{"text", "…"}}).empty(); }));
    Rows found;
    const Json labels = phone.find({{"class", "UILabel"}});
    for (std::size_t i = 0; i + 3 < labels.size(); ++i) {
        const std::string method = labels[i]["text"];
        if (method.ends_with(":")) {
            for (std::size_t result = i + 1; result <= i + 3; ++result) {
                found[method] += labels[result]["text"].get<std::string>();
            }
        }
    }
    return found;
}

const Rows allPass{{"+URLWithString:", "通过通过通过"},
                   {"initWithString:", "通过通过通过"},
                   {"+dataTaskWithURL:", "通过通过通过"},
                   {"dataTaskWithRequest:completionHandler:", "通过通过通过"},
                   {"dataTaskWithRequest:", "通过通过通过"},
                   {"+connectionWithRequest:delegate:", "通过通过通过"},
                   {"loadRequest:", "通过通过通过"},
                   {"setURL:", "通过通过通过"},
                   {"+canInitWithRequest:", "通过通过通过"},
                   {"+canonicalRequestForRequest:", "通过通过通过"}};

TEST(BrowserApplication, EverythingPassesWithoutTheLibrary) {
    tests::Phone phone({"--app", "browser", "--no-library"});
    EXPECT_EQ(rows(phone), allPass);
}

TEST(BrowserApplication, ShowsWhatIsBlockedAtEachEntryPoint) {
    tests::Phone phone({"--app", "browser"});
    Rows blocked{{"+URLWithString:", "通过通过通过"},
                 {"initWithString:", "通过屏蔽屏蔽"},
                 {"+dataTaskWithURL:", "通过屏蔽屏蔽"},
                 {"dataTaskWithRequest:completionHandler:", "通过屏蔽屏蔽"},
                 {"dataTaskWithRequest:", "通过屏蔽通过"},
                 {"+connectionWithRequest:delegate:", "通过屏蔽通过"},
                 {"loadRequest:", "通过屏蔽通过"},
                 {"setURL:", "通过屏蔽通过"},
                 {"+canInitWithRequest:", "通过屏蔽通过"},
                 {"+canonicalRequestForRequest:", "屏蔽屏蔽屏蔽"}};
    EXPECT_EQ(rows(phone), blocked);
    phone.set({{"开启广告屏蔽", true}, {"Host过滤屏蔽4", "www.example.com"}});
    phone.message(phone.find({{"title", "重新加载"}}).at(0), "sendActionsForControlEvents:", {64});
    blocked["+URLWithString:"] = "通过屏蔽通过";
    blocked["setURL:"] = "屏蔽屏蔽通过";
    EXPECT_EQ(rows(phone), blocked);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST(BrowserApplication, EveryLoadThatPassesIsARequest) {
    tests::Phone phone({"--app", "browser"});
    rows(phone);
    const Json events = phone.result({{"do", "events"}});
    int requests = 0;
    for (const Json& event : events) {
        requests += event["kind"] == "request" ? 1 : 0;
    }
    EXPECT_EQ(requests, 7) << "one by two entry points, two by two, and the placeholder's";
}

} // namespace
