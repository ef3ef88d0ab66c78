// The request, and the sheet of what it brought.
#include "library/toolbox/text_tools/video_links.hpp"

#include "bindings/foundation/json_serialization.hpp"
#include "bindings/foundation/url_session.hpp"
#include "library/common/alert.hpp"
#include "library/toolbox/main_thread.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

/// A public service that takes these links apart.
constexpr std::u16string_view service = u"https://api.douyin.wtf/api/video/douyin/?url=";

struct VideoPart {
    std::u16string_view title;
    std::u16string_view key; ///< of the part's address in the answer
};
constexpr std::array<VideoPart, 4> videoParts{{
    {u"下载视频", u"url"},
    {u"下载音频", u"music_url"},
    {u"下载视频封面", u"cover"},
    {u"下载音频封面", u"music_cover"},
}};

/// Nil when there is none.
ns::Dictionary partsIn(ns::Data answer) {
    const auto object = ns::JsonSerialization::object(answer).value.as<ns::Dictionary>();
    return object.get(u"data"_ns).as<ns::Dictionary>();
}

/// A part that is not there is offered, too.
void offerParts(FloatingViewController controller, ns::Dictionary parts) {
    const Alert sheet(
        ui::AlertController::with(u"请选择下载内容"_ns, nullptr, ui::AlertStyle::actionSheet));
    for (const VideoPart& part : videoParts) {
        const auto address = parts.get(ns::String::from(part.key)).as<ns::String>();
        sheet.action(ns::String::from(part.title),
                     [controller = objc::Strong(controller), address = objc::Strong(address)] {
                         controller.downloadWithUrl(address, ns::UrlSession::sharedSession());
                     });
    }
    sheet.action(u"取消"_ns, ui::AlertActionStyle::cancel).present();
}

} // namespace

std::u16string videoRequestAddress(std::u16string_view address) {
    return std::u16string(service).append(address);
}

void offerVideo(FloatingViewController controller, ns::String address) {
    const auto url = ns::Url::withString(ns::String::from(videoRequestAddress(address.utf16())));
    if (!url) {
        return;
    }
    const auto completion = ns::UrlSession::Handler::from(
        [controller = objc::Strong(controller)](ns::Data answer, ns::UrlResponse,
                                                ns::Error error) mutable {
            onMainThread(std::move(controller),
                         [answer = objc::Strong(answer),
                          failed = static_cast<bool>(error)](FloatingViewController chooser) {
                             if (!failed) {
                                 offerParts(chooser, partsIn(answer));
                             }
                         });
        });
    ns::UrlSession::sharedSession().dataTask(url, completion).resume();
}

} // namespace wentra::toolbox
