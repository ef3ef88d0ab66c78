// The table of targets.
#include "library/toolbox/search_targets.hpp"

#include "bindings/foundation/number.hpp"

#include <array>
#include <span>

namespace wentra::toolbox {
namespace {

struct Pair {
    std::u16string_view key;
    std::u16string_view value;
};

/// Titles, which are also the names of the switches, and the methods that the rows call.
constexpr std::array<Pair, 25> targets{{
    {u"AppStore", u"goToAppStore"},  {u"下载", u"goxiazai"},
    {u"预览", u"goyulan"},           {u"百度", u"goTobaidusou"},
    {u"必应", u"gobiying"},          {u"谷歌", u"goGoogle"},
    {u"推特", u"goToTwitter"},       {u"微博", u"goToweibo"},
    {u"知乎", u"goTozhihu"},         {u"淘宝", u"gotaobao"},
    {u"京东", u"goTojingdong"},      {u"小红书", u"gotoxhs"},
    {u"拼多多", u"gotopdd"},         {u"盘搜搜", u"goTopansousou"},
    {u"YouTube", u"goyoutube"},      {u"saily+源", u"gotosaily"},
    {u"哔哩哔哩", u"goTobilibili"},  {u"iOS地图", u"goToiOSmap"},
    {u"百度地图", u"goTobaiduditu"}, {u"高德地图", u"goTogaode"},
    {u"图标搜图", u"goTotubiao"},    {u"天眼查网页", u"goTotianyanchawy"},
    {u"花瓣网搜图", u"goTohuaban"},  {u"yandex搜图", u"goToyandex"},
    {u"抖音网页搜索", u"goTodywy"},
}};

constexpr std::array<Pair, 5> links{{
    {u"baiduyun://", u"在百度云盘打开"},
    {u"douyinsharesdk://", u"在抖音打开"},
    {u"fleamarket://", u"在闲鱼打开"},
    {u"taobao://", u"在淘宝打开"},
    {u"wireless1688://", u"在阿里巴巴打开"},
}};

ns::Dictionary dictionary(std::span<const Pair> pairs) {
    const auto made = ns::MutableDictionary::make();
    for (const Pair& pair : pairs) {
        made.set(ns::String::from(pair.value), ns::String::from(pair.key));
    }
    return made;
}

} // namespace

ns::Array shownTargets(ns::Dictionary preferences) {
    const auto titles = ns::MutableArray::make();
    const auto on = ns::Number::from(true);
    for (const Pair& target : targets) {
        const auto title = ns::String::from(target.key);
        if (preferences.get(title).isEqual(on)) {
            titles.add(title);
        }
    }
    return titles;
}

ns::Dictionary targetMethods() { return dictionary(targets); }

ns::Dictionary linkTitles() { return dictionary(links); }

} // namespace wentra::toolbox
