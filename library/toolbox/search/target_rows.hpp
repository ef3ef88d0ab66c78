// The rows of the menu of targets.
#pragma once

#include <array>
#include <string_view>

namespace wentra::toolbox {

struct TargetRow {
    std::u16string_view title;  ///< also the name of the switch that shows the row
    std::u16string_view method; ///< of the controller, which the row calls
};

/// In the menu's order.
inline constexpr std::array<TargetRow, 25> targetRows{{
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

} // namespace wentra::toolbox
