// The applications that open URLs.
#include "desktop/uikit/application/url_openers.hpp"

#include <gtest/gtest.h>

namespace {

using desktop::openerOf;

TEST(UrlOpeners, AreKnownByTheirSchemes) {
    EXPECT_EQ(openerOf(u"https"), u"Safari");
    EXPECT_EQ(openerOf(u"taobao"), u"淘宝");
    EXPECT_EQ(openerOf(u"sinaweibo"), openerOf(u"weibo"));
    EXPECT_EQ(openerOf(u"itms-apps"), u"App Store");
    EXPECT_EQ(openerOf(u"HTTP"), u"Safari") << "case makes no difference";
}

TEST(UrlOpeners, OfOtherSchemesTheSchemeItselfIsTold) {
    for (const std::u16string scheme : {u"", u"http+x", u"htt", u"WeiXin", u"x-\xD800"}) {
        EXPECT_EQ(openerOf(scheme), scheme);
    }
}

} // namespace
