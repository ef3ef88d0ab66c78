// Notices: labels that are removed after a while.
#include "library/common/notice.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/uikit/label.hpp"

namespace wentra {
namespace {

constexpr double nanosecondsPerSecond = 1e9;

} // namespace

void showNotice(ui::View over, ns::String text, double height, double seconds) {
    const CGSize room = over.bounds().size;
    const auto label =
        ui::Label::withFrame({{room.width * 0.5 - 135, room.height * height - 20}, noticeSize});
    label.setText(text);
    label.setTextAlignment(ui::TextAlignment::center);
    label.setBackgroundColor(ui::Color::lightGray());
    over.addSubview(label);
    dispatch::after(static_cast<std::int64_t>(seconds * nanosecondsPerSecond),
                    dispatch::mainQueue(),
                    [label = objc::Strong(label)] { label.removeFromSuperview(); });
}

} // namespace wentra
