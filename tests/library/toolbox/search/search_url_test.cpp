// The addresses of searches.
#include "library/toolbox/search/search_url.hpp"

#include <gtest/gtest.h>

namespace wentra::toolbox {
namespace {

TEST(SearchUrls, TakeTheTextEncoded) {
    EXPECT_EQ(searchAddress(search::baidu, u"a 中&b"),
              u"https://www.baidu.com/s?word=a%20%E4%B8%AD&b");
    EXPECT_EQ(
        searchAddress(search::gaodeMap, u"%@"),
        u"iosamap://path?sourceApplication=launch&backScheme=launch:&dname=%25@&dev=0&m=0&t=0");
    EXPECT_EQ(searchAddress(search::shortVideos, u""), u"https://www.douyin.com/search/");
}

TEST(SearchUrls, OfTheShopHaveAllOfItsJsonEncoded) {
    EXPECT_EQ(productListAddress(u"a\"b"),
              u"openjd://virtual?params=%7B%22des%22:%22productList%22,%22keyWord%22:%22a%22b%22,"
              u"%22from%22:%22search%22,%22category%22:%22jump%22%7D");
}

TEST(WebAddresses, GetAProtocolWhereTheyHaveNone) {
    EXPECT_EQ(webAddress(u"a.example/b"), u"https://a.example/b");
    EXPECT_EQ(webAddress(u"ftp://a"), u"https://ftp://a");
    EXPECT_EQ(webAddress(u"http://a"), u"http://a");
    EXPECT_EQ(webAddress(u"https://a"), u"https://a");
    EXPECT_EQ(webAddress(u""), u"");
}

} // namespace
} // namespace wentra::toolbox
