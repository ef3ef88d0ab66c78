// URLs are written as they were given.
#include "desktop/foundation/url.hpp"

#include "bindings/foundation/url.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

namespace desktop::foundation {
namespace {

using namespace ns::literals;

TEST(Url, IsWrittenAsItWasGiven) {
    const objc::Pool pool;
    installUrls();
    for (const ns::String given :
         {u"https://a.example?q"_ns, u"https://a.example/b?"_ns, u"https://a.example?"_ns,
          u"HTTP://A.example/B"_ns, u"x://a&b/c"_ns, u"filza:///var"_ns, u"mailto:a@b.example"_ns,
          u"taobao://"_ns, u"a/b?c"_ns, u"file:///"_ns, u"file:///a?b#c"_ns,
          u"file:///a%20b/../c;d/"_ns, u"file:///a#"_ns, u"file:///?"_ns, u"file:////a//b"_ns}) {
        EXPECT_EQ(ns::Url::withString(given).absoluteString().utf8(), given.utf8());
    }
}

TEST(Url, IsReadAllTheSame) {
    const objc::Pool pool;
    installUrls();
    const auto url = ns::Url::withString(u"HTTP://u@a&b.example:80?c"_ns);
    EXPECT_EQ((url.send<"query", ns::String>().utf8()), "c");
    EXPECT_EQ(url.host().utf8(), "a&b.example");
}

TEST(Url, BelowAnotherBelongsToIt) {
    const objc::Pool pool;
    installUrls();
    const auto base = ns::Url::withString(u"https://a.example/b/"_ns);
    const auto below = ns::Url::sendClass<"URLWithString:relativeToURL:", ns::Url>(u"c?"_ns, base);
    EXPECT_EQ(below.absoluteString().utf8().substr(0, 21), "https://a.example/b/c");
}

TEST(Url, OfAFileIsWrittenAsFoundationWritesIt) {
    const objc::Pool pool;
    installUrls();
    for (int unit = 1; unit < 0x180; ++unit) {
        for (const bool isDirectory : {false, true}) {
            const auto path = ns::String::from(std::u16string(u"/tmp/none ") +
                                               static_cast<char16_t>(unit) + u"x");
            const auto whole =
                ns::Url::sendClass<"alloc", ns::Url>()
                    .send<"initFileURLWithPath:isDirectory:", ns::Url>(path, isDirectory);
            const auto made = ns::Url::fileUrlWithPath(path, isDirectory);
            EXPECT_EQ(made.absoluteString().utf8(), whole.absoluteString().utf8()) << unit;
            EXPECT_EQ(made.path().utf8(), whole.path().utf8()) << unit;
        }
    }
}

} // namespace
} // namespace desktop::foundation
