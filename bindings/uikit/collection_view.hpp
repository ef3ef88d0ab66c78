// UICollectionView.
#pragma once

#include "bindings/foundation/index_path.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/options.hpp"
#include "bindings/uikit/collection_view_cell.hpp"
#include "bindings/uikit/collection_view_layout.hpp"
#include "bindings/uikit/scroll_view.hpp"

namespace ui {

using objc::operator|, objc::operator&, objc::operator~;

/// Where an item lies after scrolling to it: one way down and one across may be combined. Without
/// any, nothing is scrolled.
enum class CollectionViewScrollPosition : unsigned long {
    none = 0,
    top = 1U << 0U,
    centeredVertically = 1U << 1U,
    bottom = 1U << 2U,
    left = 1U << 3U,
    centeredHorizontally = 1U << 4U,
    right = 1U << 5U,
};
constexpr bool areOptions(CollectionViewScrollPosition) { return true; }

struct CollectionView : objc::Kind<CollectionView, "UICollectionView", ScrollView> {
    using Kind::Kind;

    static CollectionView withFrame(CGRect frame, CollectionViewLayout layout) {
        return make<"initWithFrame:collectionViewLayout:">(frame, layout);
    }

    // The two are not retained.
    void setDataSource(objc::Object source) const { send<"setDataSource:">(source); }
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
    void setAllowsMultipleSelection(bool allowed) const {
        send<"setAllowsMultipleSelection:">(allowed);
    }
    void registerClass(Class cell, ns::String identifier) const {
        send<"registerClass:forCellWithReuseIdentifier:">(cell, identifier);
    }
    /// Only for the data source, while it answers for that item.
    [[nodiscard]] CollectionViewCell dequeueReusableCell(ns::String identifier,
                                                         ns::IndexPath path) const {
        return send<"dequeueReusableCellWithReuseIdentifier:forIndexPath:", CollectionViewCell>(
            identifier, path);
    }
    /// Asks the data source anew; nothing is selected afterwards.
    void reloadData() const { send<"reloadData">(); }
    [[nodiscard]] long numberOfSections() const { return send<"numberOfSections", long>(); }
    [[nodiscard]] long numberOfItems(long section) const {
        return send<"numberOfItemsInSection:", long>(section);
    }
    /// Nil for items that are not visible.
    [[nodiscard]] CollectionViewCell cellForItem(ns::IndexPath path) const {
        return send<"cellForItemAtIndexPath:", CollectionViewCell>(path);
    }
    /// Nil where there is no item; the point is in the view's content.
    [[nodiscard]] ns::IndexPath indexPathForItem(CGPoint point) const {
        return send<"indexPathForItemAtPoint:", ns::IndexPath>(point);
    }
    /// Neither tells the delegate.
    void selectItem(ns::IndexPath path, bool animated,
                    CollectionViewScrollPosition scrollPosition) const {
        send<"selectItemAtIndexPath:animated:scrollPosition:">(path, animated, scrollPosition);
    }
    void deselectItem(ns::IndexPath path, bool animated) const {
        send<"deselectItemAtIndexPath:animated:">(path, animated);
    }
};

} // namespace ui
