// UICollectionReusableView and UICollectionViewCell.
#pragma once

#include "bindings/foundation/string.hpp"
#include "bindings/uikit/collection_view.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

/// A view that is used again for another item.
class CollectionReusableView
    : public PlatformClass<CollectionReusableView, ui::CollectionReusableView> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"reuseIdentifier", &CollectionReusableView::identifier_>(),
            objc::method<"prepareForReuse", &CollectionReusableView::prepareForReuse>(),
        };
    }
    void setReuseIdentifier(ns::String identifier) { identifier_ = identifier; }

private:
    void prepareForReuse() {}

    objc::Copied<ns::String> identifier_;
};

class CollectionViewCell : public PlatformClass<CollectionViewCell, ui::CollectionViewCell> {
public:
    static std::vector<objc::MethodRow> methods();

private:
    ui::CollectionViewCell initWithFrame(CGRect frame);
    void setBackgroundView(ui::View view);
    [[nodiscard]] ui::View backgroundView() const { return background_; }
    void setSelectedBackgroundView(ui::View view);
    [[nodiscard]] ui::View selectedBackgroundView() const { return selectedBackground_; }
    void putBehind(objc::Strong<ui::View>& place, ui::View view);
    void stateChanged();

    objc::Strong<ui::View> content_;
    objc::Strong<ui::View> background_;
    objc::Strong<ui::View> selectedBackground_;
    bool selected_ = false;
    bool highlighted_ = false;
};

} // namespace desktop
