// Notices: labels that are removed after a while.
#include "library/common/notice.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/window.hpp"
#include "library/common/light_background.hpp"

namespace wentra {

CGRect noticeFrame(CGSize view, const NoticePlace& place) {
    constexpr CGSize size{260, 40};
    return {{view.width * 0.5 - place.left, view.height * place.height - place.above}, size};
}

void showNotice(ui::View view, ns::String text, const NoticePlace& place, double seconds) {
    const auto label = ui::Label::withFrame(noticeFrame(view.bounds().size, place));
    label.setText(text);
    label.setTextAlignment(ui::TextAlignment::center);
    setLightBackground(label, ui::Color::lightGray());
    view.window().addSubview(label);
    dispatch::after(seconds, dispatch::mainQueue(),
                    [label = objc::Strong(label)] { label.removeFromSuperview(); });
}

} // namespace wentra
