// Guides and their owners.
#include "desktop/uikit/constraints/layout_guide.hpp"

#include "bindings/uikit/layout_guide.hpp"

#include "desktop/uikit/constraints/layout_anchor.hpp"

#include <algorithm>
#include <iterator>

namespace desktop {

std::vector<objc::MethodRow> LayoutGuide::methods() {
    std::vector<objc::MethodRow> rows{
        objc::method<"owningView", &LayoutGuide::owner>(),
        objc::method<"layoutFrame", &LayoutGuide::layoutFrame>(),
        objc::property<"identifier", &LayoutGuide::identifier_>(),
    };
    std::ranges::copy(anchorMethods(), std::back_inserter(rows));
    return rows;
}

ui::LayoutGuide LayoutGuide::with(ui::View owner, GuideRole role) {
    const auto guide = ui::LayoutGuide::make();
    of(guide).owner_ = owner;
    of(guide).role_ = role;
    return guide;
}

CGRect LayoutGuide::layoutFrame() const {
    owner_.layoutIfNeeded();
    return frame_;
}

ui::View viewOf(objc::Object item) {
    const auto view = item.as<ui::View>();
    return view || !item.as<ui::LayoutGuide>() ? view : LayoutGuide::of(item).owner();
}

} // namespace desktop
