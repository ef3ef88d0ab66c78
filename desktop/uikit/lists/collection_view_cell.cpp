// Cells: the content, and what lies behind it.
#include "desktop/uikit/lists/collection_view_cell.hpp"

namespace desktop {
namespace {

constexpr ui::ViewAutoresizing fillsCell =
    ui::ViewAutoresizing::flexibleWidth | ui::ViewAutoresizing::flexibleHeight;

} // namespace

std::vector<objc::MethodRow> CollectionViewCell::methods() {
    using Self = CollectionViewCell;
    return {
        objc::method<"initWithFrame:", &Self::initWithFrame>(),
        objc::method<"contentView", &Self::content_>(),
        objc::flag<"selected", &Self::selected_, &Self::stateChanged>(),
        objc::flag<"highlighted", &Self::highlighted_, &Self::stateChanged>(),
        objc::property<"backgroundView", &Self::backgroundView, &Self::setBackgroundView>(),
        objc::property<"selectedBackgroundView", &Self::selectedBackgroundView,
                       &Self::setSelectedBackgroundView>(),
    };
}

ui::CollectionViewCell CollectionViewCell::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    content_ = ui::View::withFrame({{}, self().bounds().size});
    content_.setAutoresizingMask(fillsCell);
    self().addSubview(content_);
    return self();
}

void CollectionViewCell::putBehind(objc::Strong<ui::View>& place, ui::View view) {
    place.removeFromSuperview();
    place = view;
    if (view) {
        view.setFrame(self().bounds());
        view.setAutoresizingMask(fillsCell);
        const bool isSelection = selectedBackground_ == view && background_;
        self().insertSubview(view, isSelection ? 1 : 0);
    }
    stateChanged();
}

void CollectionViewCell::setBackgroundView(ui::View view) { putBehind(background_, view); }

void CollectionViewCell::setSelectedBackgroundView(ui::View view) {
    putBehind(selectedBackground_, view);
}

void CollectionViewCell::stateChanged() {
    selectedBackground_.setHidden(!selected_ && !highlighted_);
}

} // namespace desktop
