// Keeping the list of pages.
#include "desktop/webkit/web_content.hpp"

#include "bindings/uikit/window.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/drawing/text_layout.hpp"
#include "desktop/runtime/event_log.hpp"

#include <algorithm>

namespace desktop {
namespace {

using namespace ns::literals;

std::vector<WebContent*>& contents() {
    static auto* all = new std::vector<WebContent*>; // views may die when the process ends
    return *all;
}

std::uint64_t lastNumber = 0;
std::uint64_t lastLoad = 0;

} // namespace

WebContent::WebContent() : number_(++lastNumber) { contents().push_back(this); }

WebContent::~WebContent() { std::erase(contents(), this); }

void WebContent::load(ui::View view, ns::Url url, ns::Dictionary headers) {
    load_ = ++lastLoad;
    view_ = view;
    address_ = url.absoluteString().utf8();
    const auto fields = ns::MutableDictionary::make();
    fields.set(ns::String::fromUtf8(address_), u"url"_ns);
    fields.set(headers ? headers : ns::MutableDictionary::make(), u"headers"_ns);
    EventLog::shared().record("webLoad", fields);
    view.setNeedsDisplay();
}

void WebContent::draw() const {
    Canvas* const canvas = currentCanvas();
    if (canvas == nullptr || !view_) {
        return;
    }
    constexpr double margin = 16;
    constexpr double grey = 0.55;
    const CGRect bounds = view_.bounds();
    TextRun look;
    look.font.size = 15;
    look.colour = {grey, grey, grey, 1};
    TextFrame frame;
    frame.width = bounds.size.width - 2 * margin;
    frame.height = bounds.size.height;
    frame.alignment = TextAlignment::center;
    const TextLayout layout(ns::String::fromUtf8(address_).utf16(), look, frame);
    layout.draw(canvas->context(),
                {bounds.origin.x + margin, (bounds.size.height - layout.size().height) / 2});
}

std::vector<LiveWebPage> liveWebPages() {
    std::vector<LiveWebPage> pages;
    for (const WebContent* content : contents()) {
        const ui::View view = content->view_;
        if (const ui::Window window = view.window()) {
            pages.push_back({content->number_, content->load_, view,
                             view.convertRect(view.bounds(), window), content->address_});
        }
    }
    return pages;
}

} // namespace desktop
