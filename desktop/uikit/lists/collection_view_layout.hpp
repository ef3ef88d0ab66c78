// UICollectionViewLayout, its attributes, and the flow layout.
#pragma once

#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "bindings/uikit/collection_view_layout_attributes.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/lists/flow_rules.hpp"

#include <vector>

namespace desktop {

/// Where and how one item is shown.
class CollectionViewLayoutAttributes
    : public PlatformClass<CollectionViewLayoutAttributes, ui::CollectionViewLayoutAttributes> {
public:
    static constexpr auto methods() {
        using Self = CollectionViewLayoutAttributes;
        return std::array{
            objc::classMethod<"layoutAttributesForCellWithIndexPath:", &Self::forCell>(),
            objc::property<"indexPath", &Self::indexPath_>(),
            objc::property<"frame", &Self::frame_>(),
            objc::property<"alpha", &Self::alpha_>(),
            objc::flag<"hidden", &Self::hidden_>(),
        };
    }

private:
    static ui::CollectionViewLayoutAttributes forCell(Class, ns::IndexPath path);

    objc::Strong<ns::IndexPath> indexPath_;
    CGRect frame_;
    double alpha_ = 1;
    bool hidden_ = false;
};

/// A layout that shows nothing; subclasses place items.
class CollectionViewLayout : public PlatformClass<CollectionViewLayout, ui::CollectionViewLayout> {
public:
    static constexpr auto methods() {
        using Self = CollectionViewLayout;
        return std::array{
            objc::method<"collectionView", &Self::collectionView>(),
            objc::method<"prepareLayout", &Self::prepareLayout>(),
            objc::method<"invalidateLayout", &Self::invalidateLayout>(),
            objc::method<"collectionViewContentSize", &Self::contentSize>(),
            objc::method<"layoutAttributesForElementsInRect:", &Self::attributesIn>(),
            objc::method<"layoutAttributesForItemAtIndexPath:", &Self::attributesAt>(),
            objc::method<"shouldInvalidateLayoutForBoundsChange:", &Self::invalidatesForBounds>(),
        };
    }

    /// The view, which lives as long as it has this layout.
    void setCollectionView(ui::CollectionView view) { view_ = view; }

private:
    [[nodiscard]] ui::CollectionView collectionView() const { return view_; }
    void prepareLayout() {}
    void invalidateLayout();
    [[nodiscard]] CGSize contentSize() const { return {}; }
    [[nodiscard]] ns::Array attributesIn(CGRect) const { return ns::Array::make(); }
    [[nodiscard]] ui::CollectionViewLayoutAttributes attributesAt(ns::IndexPath) const {
        return nullptr;
    }
    [[nodiscard]] bool invalidatesForBounds(CGRect bounds) const;

    ui::CollectionView view_;
};

/// Sets items in lines, by rows or by columns.
class CollectionViewFlowLayout
    : public PlatformClass<CollectionViewFlowLayout, ui::CollectionViewFlowLayout> {
public:
    static std::vector<objc::MethodRow> methods();

private:
    void changed() { self().send<"invalidateLayout">(); }
    void prepareLayout();
    [[nodiscard]] CGSize contentSize() const;
    [[nodiscard]] ns::Array attributesIn(CGRect rect) const;
    [[nodiscard]] ui::CollectionViewLayoutAttributes attributesAt(ns::IndexPath path) const;
    [[nodiscard]] FlowSection section(long index) const;
    void setItems(FlowSection& section, long index) const;
    [[nodiscard]] bool isHorizontal() const { return direction_ == 1; }
    /// Between content and the placement's rows.
    [[nodiscard]] CGRect turned(CGRect rect) const;
    [[nodiscard]] CGSize turned(CGSize size) const;
    [[nodiscard]] double breadth() const;
    /// What the delegate answers for the section, or the layout's own value.
    template <objc::Literal Name, class Value, class... Arguments>
    Value asked(Value otherwise, Arguments... arguments) const;

    CGSize itemSize_{50, 50};
    double interitemSpacing_ = 10;
    double lineSpacing_ = 10;
    UIEdgeInsets sectionInset_;
    long direction_ = 0;
    FlowPlacement placement_;
};

} // namespace desktop
