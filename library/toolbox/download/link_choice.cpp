// Loading the page, and its sheet.
#include "library/toolbox/download/link_choice.hpp"

#include "bindings/foundation/url_session.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/alert.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/download/download.hpp"
#include "library/toolbox/download/download_rules.hpp"
#include "library/toolbox/main_thread.hpp"

#include <utility>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

void offer(FloatingViewController controller, ns::Array links) {
    const bool filters = preferences::Preferences::read().on(preferences::keys.filterParsedLinks);
    const Alert sheet(
        ui::AlertController::with(u"选择下载链接文件"_ns, nullptr, ui::AlertStyle::actionSheet));
    sheet.action(u"取消"_ns, ui::AlertActionStyle::cancel);
    for (const objc::Object each : links) {
        const auto link = each.as<ns::String>();
        if (filters && isFilteredOut(link.utf16())) {
            continue;
        }
        sheet.action(link, [controller = objc::Strong(controller), link = objc::Strong(link)] {
            ui::Pasteboard::generalPasteboard().setString(link);
            Download::of(controller)
                .load(ns::Url::withString(link), ns::OperationQueue::mainQueue());
        });
    }
    sheet.presentFrom(controller);
}

/// Nil unless it is UTF-8.
ns::String textOf(ns::Data page) {
    return ns::String::make<"initWithData:encoding:">(page, ns::StringEncoding::utf8);
}

} // namespace

void offerLinks(FloatingViewController controller, ns::Url page) {
    const auto completion =
        ns::UrlSession::Handler::from([controller = objc::Strong(controller)](
                                          ns::Data data, ns::UrlResponse, ns::Error error) mutable {
            const ns::Array links = error ? nullptr : controller.linksInString(textOf(data));
            onMainThread(std::move(controller),
                         [links = objc::Strong(links)](FloatingViewController chooser) {
                             if (links) {
                                 offer(chooser, links);
                             } else {
                                 Download::of(chooser).tellOfFailure();
                             }
                         });
        });
    ns::UrlSession::sharedSession().dataTask(page, completion).resume();
}

} // namespace wentra::toolbox
