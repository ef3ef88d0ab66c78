// UICollectionView, its cells and its flow layout.
#pragma once

#include "bindings/foundation/index_path.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/uikit/scroll_view.hpp"

namespace ui {

struct CollectionReusableView
    : objc::Kind<CollectionReusableView, "UICollectionReusableView", View> {
    using Kind::Kind;
};

struct CollectionViewCell
    : objc::Kind<CollectionViewCell, "UICollectionViewCell", CollectionReusableView> {
    using Kind::Kind;

    /// What the cell shows is put into this view.
    [[nodiscard]] View contentView() const { return send<"contentView", View>(); }
};

struct CollectionViewLayout : objc::Kind<CollectionViewLayout, "UICollectionViewLayout"> {
    using Kind::Kind;
};

struct CollectionViewFlowLayout
    : objc::Kind<CollectionViewFlowLayout, "UICollectionViewFlowLayout", CollectionViewLayout> {
    using Kind::Kind;

    /// In points, at least, between the items of a line.
    void setMinimumInteritemSpacing(double points) const {
        send<"setMinimumInteritemSpacing:">(points);
    }
    /// In points, at least, between lines.
    void setMinimumLineSpacing(double points) const { send<"setMinimumLineSpacing:">(points); }
};

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
    [[nodiscard]] CollectionViewCell dequeue(ns::String identifier, ns::IndexPath path) const {
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
    [[nodiscard]] CollectionViewCell cellAt(ns::IndexPath path) const {
        return send<"cellForItemAtIndexPath:", CollectionViewCell>(path);
    }
    /// Nil where there is no item; the point is in the view's content.
    [[nodiscard]] ns::IndexPath indexPathAt(CGPoint point) const {
        return send<"indexPathForItemAtPoint:", ns::IndexPath>(point);
    }
    /// Neither tells the delegate. A scroll position of 0 does not scroll.
    void select(ns::IndexPath path, bool animated, unsigned long scrollPosition) const {
        send<"selectItemAtIndexPath:animated:scrollPosition:">(path, animated, scrollPosition);
    }
    void deselect(ns::IndexPath path, bool animated) const {
        send<"deselectItemAtIndexPath:animated:">(path, animated);
    }
};

} // namespace ui
