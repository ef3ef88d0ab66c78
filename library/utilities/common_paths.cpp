// The table of paths, and the sheet.
#include "library/utilities/common_paths.hpp"

#include "library/common/alert.hpp"
#include "library/common/links.hpp"

#include <array>

namespace wentra::utilities {
namespace {

using namespace ns::literals;

struct CommonPath {
    std::u16string_view title;
    std::u16string_view url; ///< as it is, whatever the layout of the jailbreak
};

constexpr std::array commonPaths{
    CommonPath{u"/var/mobile/Documents/", u"filza:///var/mobile/Documents/"},
    CommonPath{u"/var/mobile", u"filza:///var/mobile/"},
    CommonPath{u"设置配置-系统路径", u"filza:///var/mobile/Library/Preferences"},
    CommonPath{u"saily-下载路径", u"filza:///var/mobile/Documents/wiki.qaq.chromatic/Downloads/"},
    CommonPath{u"dpkg-无根路径", u"filza:///var/jb/Library/dpkg/"},
    CommonPath{u"audiorecorder通话录音",
               u"filza:///var/mobile/Library/Preferences/net.limneos.audiorecorder/"},
    CommonPath{u"已装插件库列表-无根路径",
               u"filza:///var/jb/Library/MobileSubstrate/DynamicLibraries/"},
    CommonPath{u"越狱插件设置配置-无根路径", u"filza:///var/jb/var/mobile/Library/Preferences/"},
    CommonPath{u"PreferenceBundles-无根路径", u"filza:///var/jb/Library/PreferenceBundles/"},
};

} // namespace

void showCommonPaths(ToolScreens& screens) {
    const auto sheet =
        ui::AlertController::with(u"常用路径"_ns, u"选择一个路径"_ns, ui::AlertStyle::actionSheet);
    for (const CommonPath& path : commonPaths) {
        Alert(sheet).action(ns::String::from(path.title),
                            [&path] { openLink(ns::String::from(path.url)); });
    }
    Alert(sheet).action(u"取消"_ns, ui::AlertActionStyle::cancel);
    screens.show(sheet);
}

} // namespace wentra::utilities
