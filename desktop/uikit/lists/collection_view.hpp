// UICollectionView: items of a data source as cells, of which only the visible ones exist.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/touch.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/lists/cell_store.hpp"
#include "desktop/uikit/lists/collection_view_layout.hpp"
#include "desktop/uikit/lists/item_selection.hpp"

#include "bindings/objc/block.hpp"
#include "bindings/uikit/collection_view_layout_attributes.hpp"

#include <optional>
#include <vector>

namespace desktop {

class CollectionView : public PlatformClass<CollectionView, ui::CollectionView> {
public:
    static std::vector<objc::MethodRow> methods();

    ~CollectionView();

private:
    using Updates = objc::Block<void()>;
    using Completion = objc::Block<void(bool finished)>;

    ui::CollectionView initWithLayout(CGRect frame, ui::CollectionViewLayout layout);
    ui::CollectionView initWithFrame(CGRect frame);
    void setDataSource(objc::Object source);
    [[nodiscard]] objc::Object dataSource() const { return dataSource_; }
    [[nodiscard]] objc::Object delegate() const { return self().send<"delegate", objc::Object>(); }
    void setLayout(ui::CollectionViewLayout layout);
    void setLayoutAnimated(ui::CollectionViewLayout layout, bool) { setLayout(layout); }
    [[nodiscard]] ui::CollectionViewLayout layout() const { return layout_; }
    void setBackgroundView(ui::View view);
    [[nodiscard]] ui::View backgroundView() const { return backgroundView_; }

    // Data.
    [[nodiscard]] const std::vector<long>& counts();
    [[nodiscard]] long numberOfSections() { return static_cast<long>(counts().size()); }
    [[nodiscard]] long numberOfItems(long section);
    [[nodiscard]] bool exists(ItemIndex index);
    void reloadData();
    void reloadItems(ns::ArrayOf<ns::IndexPath> paths);
    void insertItems(ns::ArrayOf<ns::IndexPath> paths);
    void deleteItems(ns::ArrayOf<ns::IndexPath> paths);
    void reloadSections(objc::Object) { dataChanged(); }
    void performBatchUpdates(Updates updates, Completion completion);
    void dataChanged();

    // Cells.
    void registerCellClass(Class cls, ns::String identifier);
    [[nodiscard]] ui::CollectionViewCell dequeue(ns::String identifier, ns::IndexPath path);
    void layoutIsInvalid();
    void layoutSubviews();
    void showVisibleCells();
    [[nodiscard]] ui::CollectionViewCell cellFromSource(ItemIndex index);
    void putAway(ItemIndex index);
    void putAllAway();
    [[nodiscard]] ui::CollectionViewCell cellAt(ns::IndexPath path) const;
    [[nodiscard]] ns::IndexPath pathForCell(ui::CollectionViewCell cell) const;
    [[nodiscard]] ns::IndexPath pathAt(CGPoint point);
    [[nodiscard]] ns::Array visibleCells() const { return cells_.cells(); }
    [[nodiscard]] ns::Array visiblePaths() const { return cells_.paths(); }
    [[nodiscard]] ui::CollectionViewLayoutAttributes attributesAt(ns::IndexPath path);
    void scrollTo(ns::IndexPath path, unsigned long position, bool animated);
    void prepare();

    // Selection and touches, in collection_view_selection.cpp.
    [[nodiscard]] ns::Array selectedPaths() const;
    void selectItem(ns::IndexPath path, bool animated, unsigned long position);
    void deselectItem(ns::IndexPath path, bool animated);
    void select(ItemIndex index);
    void deselect(ItemIndex index);
    void clearSelection();
    void selectionAllowedChanged();
    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesCancelled(ns::SetOf<ui::Touch> touches, ui::Event event);
    std::set<ItemIndex> release();
    void selectByTouch(ItemIndex index);
    /// Asks the delegate about an item; yes when it has no opinion.
    template <objc::Literal Name>
    bool may(ItemIndex index) const;
    template <objc::Literal Name, class... Arguments>
    void tell(Arguments... arguments) const;

    objc::Weak<objc::Object> dataSource_;
    objc::Strong<ui::CollectionViewLayout> layout_;
    objc::Strong<ui::View> backgroundView_;
    std::optional<std::vector<long>> counts_; // of the sections' items, until the next reload
    bool layoutIsCurrent_ = false;
    CGSize latestSize_; // that the layout was made for
    CellStore<ui::CollectionViewCell> cells_;
    ItemSelection selection_;
    ItemSelection pressed_; // one at most
    bool allowsSelection_ = true;
    bool allowsMultipleSelection_ = false;
};

template <objc::Literal Name>
bool CollectionView::may(ItemIndex index) const {
    const objc::Object asked = delegate();
    const SEL name = objc::selector<Name>();
    return !asked || !asked.respondsToSelector(name) ||
           objc::sendTo<bool>(asked.raw(), name, self(), index.path());
}

template <objc::Literal Name, class... Arguments>
void CollectionView::tell(Arguments... arguments) const {
    const objc::Object told = delegate();
    const SEL name = objc::selector<Name>();
    if (told && told.respondsToSelector(name)) {
        objc::sendTo(told.raw(), name, self(), arguments...);
    }
}

} // namespace desktop
