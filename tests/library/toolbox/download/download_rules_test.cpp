// What can be downloaded, what is offered, and what it is called.
#include "library/toolbox/download/download_rules.hpp"

#include <gtest/gtest.h>

namespace wentra::toolbox {
namespace {

TEST(DownloadRules, AnAddressBeginsWithItsScheme) {
    EXPECT_TRUE(isWebAddress(u"http://a"));
    EXPECT_TRUE(isWebAddress(u"https://"));
    for (const auto* text :
         {u"", u"a.example", u"ftp://a", u" https://a", u"HTTPS://a", u"http:/a", u"看https://a"}) {
        EXPECT_FALSE(isWebAddress(text));
    }
}

TEST(DownloadRules, TheFilterLooksAtTheEnd) {
    for (const auto* link : {u"https://a.com", u"https://a/b.js", u"https://a/b.css", u".com"}) {
        EXPECT_TRUE(isFilteredOut(link));
    }
    for (const auto* link : {u"", u"https://a.com/", u"https://a.com/b.zip", u"https://a/b.json",
                             u"https://a/b.CSS", u"https://a/js"}) {
        EXPECT_FALSE(isFilteredOut(link));
    }
}

TEST(DownloadRules, ANameIsThatOfAFile) {
    EXPECT_EQ(fileNameIn(u"a.txt"), u"a.txt");
    EXPECT_EQ(fileNameIn(u"../../a.txt"), u"a.txt");
    for (const auto* name : {u"", u".", u"..", u"a/", u"a/.."}) {
        EXPECT_EQ(fileNameIn(name), u"download");
    }
}

} // namespace
} // namespace wentra::toolbox
