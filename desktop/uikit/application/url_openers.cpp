// The table of schemes.
#include "desktop/uikit/application/url_openers.hpp"

#include <algorithm>
#include <array>

namespace desktop {
namespace {

struct Opener {
    std::u16string_view scheme;
    std::u16string_view application;
};

constexpr std::array openers{
    Opener{u"http", u"Safari"},
    Opener{u"https", u"Safari"},
    Opener{u"mailto", u"邮件"},
    Opener{u"tel", u"电话"},
    Opener{u"sms", u"信息"},
    Opener{u"facetime", u"FaceTime"},
    Opener{u"maps", u"地图"},
    Opener{u"itms-apps", u"App Store"},
    Opener{u"taobao", u"淘宝"},
    Opener{u"openjd", u"京东"},
    Opener{u"zhihu", u"知乎"},
    Opener{u"weibo", u"微博"},
    Opener{u"sinaweibo", u"微博"},
    Opener{u"twitter", u"Twitter"},
    Opener{u"youtube", u"YouTube"},
    Opener{u"bilibili", u"哔哩哔哩"},
    Opener{u"xhsdiscover", u"小红书"},
    Opener{u"pinduoduo", u"拼多多"},
    Opener{u"baidumap", u"百度地图"},
    Opener{u"iosamap", u"高德地图"},
    Opener{u"apt-repo", u"Saily"},
    Opener{u"filza", u"Filza"},
    Opener{u"douyinsharesdk", u"抖音"},
    Opener{u"baiduyun", u"百度网盘"},
    Opener{u"fleamarket", u"闲鱼"},
    Opener{u"wireless1688", u"阿里巴巴"},
};

/// Schemes are ASCII.
char16_t lower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

} // namespace

std::u16string openerOf(std::u16string_view scheme) {
    const auto* const found = std::ranges::find_if(openers, [scheme](const Opener& opener) {
        return std::ranges::equal(opener.scheme, scheme, {}, {}, &lower);
    });
    return std::u16string(found == openers.end() ? scheme : found->application);
}

} // namespace desktop
