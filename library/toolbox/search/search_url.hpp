// The addresses that a text is sought at, in applications and on the web.
#pragma once

#include <string>
#include <string_view>

namespace wentra::toolbox {

/// Who opens an address.
enum class Opener { application, browser };

/// A target's address with "%@" where the text goes, percent-encoded.
struct SearchUrl {
    Opener opener;
    std::u16string_view format;
};

/// The services' own hosts, the ones that their search pages and applications' links name.
namespace search {
// The host of the store's search, which the scheme hands to the store's application.
inline constexpr SearchUrl appStore{
    Opener::application,
    u"itms-apps://search.itunes.apple.com/WebObjects/MZSearch.woa/wa/search?media=software&term=%@"};
inline constexpr SearchUrl baidu{Opener::browser, u"https://www.baidu.com/s?word=%@"};
inline constexpr SearchUrl bing{Opener::browser, u"https://www.bing.com/search?q=%@"};
inline constexpr SearchUrl google{Opener::browser, u"https://www.google.com/search?q=%@"};
inline constexpr SearchUrl twitter{Opener::application, u"twitter://search?query=%@"};
inline constexpr SearchUrl weibo{Opener::application, u"sinaweibo://searchall?q=%@"};
inline constexpr SearchUrl zhihu{Opener::application, u"zhihu://search?q=%@"};
// The shop's search site, whose links its application takes over.
inline constexpr SearchUrl taobao{Opener::application, u"taobao://s.taobao.com/?q=%@"};
inline constexpr SearchUrl xiaohongshu{Opener::application,
                                       u"xhsdiscover://search/result?keyword=%@"};
inline constexpr SearchUrl pinduoduo{Opener::application, u"pinduoduo://search/result?keyword=%@"};
// The mobile site of the search over cloud drives.
inline constexpr SearchUrl cloudDrives{Opener::browser, u"https://m.pansoso.com/zh/%@"};
inline constexpr SearchUrl youTube{Opener::application, u"youtube://search?q=%@"};
inline constexpr SearchUrl packageSource{Opener::application, u"apt-repo://%@"};
inline constexpr SearchUrl bilibili{Opener::application, u"bilibili://search?keyword=%@"};
// The host that the system's map links name.
inline constexpr SearchUrl appleMaps{Opener::application, u"maps://maps.apple.com/?q=%@"};
inline constexpr SearchUrl baiduMap{Opener::application, u"baidumap://map/place/search?query=%@"};
inline constexpr SearchUrl gaodeMap{
    Opener::application,
    u"iosamap://path?sourceApplication=launch&backScheme=launch:&dname=%@&dev=0&m=0&t=0"};
// An icon search whose query has this form.
inline constexpr SearchUrl icons{Opener::browser, u"https://www.flaticon.com/search?word=%@"};
// The mobile site of the register of companies.
inline constexpr SearchUrl companies{Opener::browser,
                                     u"https://m.tianyancha.com/search?key=%@&checkFrom=searchBox"};
// The image boards' mobile site.
inline constexpr SearchUrl imageBoards{Opener::browser, u"https://m.huaban.com/search/?q=%@"};
inline constexpr SearchUrl yandexImages{
    Opener::browser,
    u"https://yandex.com/images/touch/search?family=yes&isize=large&lr=11514&text=%@"};
inline constexpr SearchUrl shortVideos{Opener::browser, u"https://www.douyin.com/search/%@"};
} // namespace search

/// The target's address for that text.
[[nodiscard]] std::u16string searchAddress(const SearchUrl& url, std::u16string_view text);

/// The address at which the shop's application lists products: the text goes into JSON as it is,
/// quotation marks included, and all of it is percent-encoded.
[[nodiscard]] std::u16string productListAddress(std::u16string_view text);

/// The address with "https://" before it, unless it is empty or begins with either protocol.
[[nodiscard]] std::u16string webAddress(std::u16string_view address);

} // namespace wentra::toolbox
