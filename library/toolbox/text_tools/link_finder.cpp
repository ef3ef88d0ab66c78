// From the text over its candidates to the one that is opened.
#include "library/toolbox/text_tools/link_finder.hpp"

#include "bindings/foundation/set.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/alert.hpp"
#include "library/common/links.hpp"
#include "library/common/notice.hpp"
#include "library/common/path_links.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/text_tools/share_codes.hpp"
#include "library/toolbox/text_tools/video_links.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

bool isVideo(ns::String address) {
    return preferences::Preferences::read().on(preferences::keys.parseVideoLinks) &&
           address.utf16().find(u"douyin") != std::u16string::npos;
}

void openChosen(FloatingViewController controller, ns::String address) {
    if (isVideo(address)) {
        offerVideo(controller, address);
    } else {
        openLink(address);
    }
}

} // namespace

void LinkFinder::begin() {
    const auto titles = ns::MutableDictionary::make();
    titles.set(u"在百度云盘打开"_ns, u"baiduyun://"_ns);
    titles.set(u"在抖音打开"_ns, u"douyinsharesdk://"_ns);
    titles.set(u"在闲鱼打开"_ns, u"fleamarket://"_ns);
    titles.set(u"在淘宝打开"_ns, u"taobao://"_ns);
    titles.set(u"在阿里巴巴打开"_ns, u"wireless1688://"_ns);
    titles_ = titles;
}

ns::Array LinkFinder::webLinksIn(ns::String text) const { return linksIn(text); }

ns::Array LinkFinder::candidates(ns::String text) const {
    const auto found = linksIn(text);
    const std::u16string units = text.utf16();
    for (const std::u16string& link : pathLinksIn(units)) {
        found.add(ns::String::from(link));
    }
    if (const std::u16string_view scheme = sharedScheme(units); !scheme.empty()) {
        found.add(ns::String::from(scheme));
    }
    return found;
}

void LinkFinder::find(objc::Object /*sender*/) {
    constexpr double shown = 1.3; // seconds
    const ns::Array found = candidates(selection_.pickedOrCopied());
    if (found.count() > 1) {
        offer(found);
    } else if (found.count() == 1) {
        const auto only = found.first().as<ns::String>();
        openLink(only);
        ui::Pasteboard::generalPasteboard().setString(only);
    } else {
        showNotice(self().view(), u"未检测到链接❗️"_ns, {.height = 0.25}, shown);
    }
    selection_.forgetTokens();
}

void LinkFinder::offer(ns::Array candidates) const {
    const Alert sheet(
        ui::AlertController::with(u"选择链接"_ns, nullptr, ui::AlertStyle::actionSheet));
    const auto used = ns::MutableSet::make();
    for (const objc::Object candidate : candidates) {
        const auto address = candidate.as<ns::String>();
        const auto known = titles_.get(address).as<ns::String>();
        const ns::String title = known ? known : address;
        if (!used.contains(title)) {
            used.add(title);
            sheet.action(title,
                         [controller = objc::Strong(self()), address = objc::Strong(address)] {
                             openChosen(controller, address);
                         });
        }
    }
    sheet.action(u"取消"_ns, ui::AlertActionStyle::cancel)
        .covering(ui::ModalPresentation::overCurrentContext)
        .present();
}

} // namespace wentra::toolbox
