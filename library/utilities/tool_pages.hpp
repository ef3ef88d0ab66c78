// The web pages of the list.
#pragma once

#include <string_view>

namespace wentra::utilities::pages {

// Public sites, whose paths are the tools' own.
inline constexpr std::u16string_view jsonLayout = u"https://www.bejson.com/jsonviewernew/";
inline constexpr std::u16string_view numberBases = u"https://jinzhi.supfree.net/";
inline constexpr std::u16string_view colours = u"https://tool.oschina.net/";
inline constexpr std::u16string_view mobileTools = u"https://m.bejson.com/";
inline constexpr std::u16string_view timeStamps =
    u"https://www.wetools.com/tools/index?name=timestamptrans";
inline constexpr std::u16string_view unicode = u"https://c.runoob.com/front-end/3602/";

} // namespace wentra::utilities::pages
