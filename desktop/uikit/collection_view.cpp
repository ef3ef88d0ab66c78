// Collection views: counting items, and making cells for those that are seen.
#include "desktop/uikit/collection_view.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/set.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/collection_view_cell.hpp"

#include <algorithm>
#include <utility>

namespace desktop {

using namespace ns::literals;

std::vector<objc::MethodRow> CollectionView::methods() {
    using Self = CollectionView;
    return {
        objc::method<"initWithFrame:collectionViewLayout:", &Self::initWithLayout>(),
        objc::method<"initWithFrame:", &Self::initWithFrame>(),
        objc::property<"dataSource", &Self::dataSource, &Self::setDataSource>(),
        objc::property<"collectionViewLayout", &Self::layout, &Self::setLayout>(),
        objc::method<"setCollectionViewLayout:animated:", &Self::setLayoutAnimated>(),
        objc::property<"backgroundView", &Self::backgroundView, &Self::setBackgroundView>(),
        objc::method<"numberOfSections", &Self::numberOfSections>(),
        objc::method<"numberOfItemsInSection:", &Self::numberOfItems>(),
        objc::method<"reloadData", &Self::reloadData>(),
        objc::method<"reloadItemsAtIndexPaths:", &Self::reloadItems>(),
        objc::method<"insertItemsAtIndexPaths:", &Self::insertItems>(),
        objc::method<"deleteItemsAtIndexPaths:", &Self::deleteItems>(),
        objc::method<"reloadSections:", &Self::reloadSections>(),
        objc::method<"performBatchUpdates:completion:", &Self::performBatchUpdates>(),
        objc::method<"registerClass:forCellWithReuseIdentifier:", &Self::registerCellClass>(),
        objc::method<"dequeueReusableCellWithReuseIdentifier:forIndexPath:", &Self::dequeue>(),
        objc::method<"layoutIsInvalid", &Self::layoutIsInvalid>(),
        objc::method<"layoutSubviews", &Self::layoutSubviews>(),
        objc::method<"cellForItemAtIndexPath:", &Self::cellAt>(),
        objc::method<"indexPathForCell:", &Self::pathForCell>(),
        objc::method<"indexPathForItemAtPoint:", &Self::pathAt>(),
        objc::method<"visibleCells", &Self::visibleCells>(),
        objc::method<"indexPathsForVisibleItems", &Self::visiblePaths>(),
        objc::method<"layoutAttributesForItemAtIndexPath:", &Self::attributesAt>(),
        objc::method<"scrollToItemAtIndexPath:atScrollPosition:animated:", &Self::scrollTo>(),
        objc::method<"indexPathsForSelectedItems", &Self::selectedPaths>(),
        objc::method<"selectItemAtIndexPath:animated:scrollPosition:", &Self::selectItem>(),
        objc::method<"deselectItemAtIndexPath:animated:", &Self::deselectItem>(),
        objc::property<"allowsSelection", &Self::allowsSelection_,
                       &Self::selectionAllowedChanged>(),
        objc::property<"allowsMultipleSelection", &Self::allowsMultipleSelection_,
                       &Self::selectionAllowedChanged>(),
        objc::method<"touchesBegan:withEvent:", &Self::touchesBegan>(),
        objc::method<"touchesEnded:withEvent:", &Self::touchesEnded>(),
        objc::method<"touchesCancelled:withEvent:", &Self::touchesCancelled>(),
    };
}

ui::CollectionView CollectionView::initWithLayout(CGRect frame, ui::CollectionViewLayout layout) {
    super<"initWithFrame:", ui::View>(frame);
    self().setBackgroundColor(ui::Color::systemBackground());
    setLayout(layout);
    return self();
}

ui::CollectionView CollectionView::initWithFrame(CGRect frame) {
    return self().send<"initWithFrame:collectionViewLayout:", ui::CollectionView>(
        frame, ui::CollectionViewFlowLayout::make());
}

CollectionView::~CollectionView() {
    if (layout_) {
        CollectionViewLayout::of(layout_).setCollectionView(nullptr);
    }
}

void CollectionView::setDataSource(objc::Object source) {
    dataSource_ = source;
    self().reloadData();
}

void CollectionView::setLayout(ui::CollectionViewLayout layout) {
    if (layout_) {
        CollectionViewLayout::of(layout_).setCollectionView(nullptr);
    }
    layout_ = layout;
    if (layout) {
        CollectionViewLayout::of(layout).setCollectionView(self());
    }
    layoutIsInvalid();
}

void CollectionView::setBackgroundView(ui::View view) {
    backgroundView_.removeFromSuperview();
    backgroundView_ = view;
    self().insertSubview(view, 0);
    self().setNeedsLayout();
}

const std::vector<long>& CollectionView::counts() {
    if (!counts_) {
        std::vector<long> counts;
        const auto sections = &objc::selector<"numberOfSectionsInCollectionView:">;
        const long count = dataSource_ && dataSource_.respondsToSelector(sections())
                               ? objc::sendTo<long>(dataSource_.raw(), sections(), self())
                               : (dataSource_ ? 1 : 0);
        for (long section = 0; section < count; ++section) {
            counts.push_back(std::max(
                0L,
                dataSource_.send<"collectionView:numberOfItemsInSection:", long>(self(), section)));
        }
        counts_ = std::move(counts);
    }
    return *counts_;
}

long CollectionView::numberOfItems(long section) {
    return section >= 0 && section < numberOfSections()
               ? counts()[static_cast<std::size_t>(section)]
               : 0;
}

bool CollectionView::exists(ItemIndex index) {
    return index.item >= 0 && index.item < numberOfItems(index.section);
}

void CollectionView::reloadData() {
    selected_.clear();
    pressed_.reset();
    dataChanged();
}

/// What the data source says is asked anew; what is selected stays so where it still exists.
void CollectionView::dataChanged() {
    putAllAway();
    counts_.reset();
    layoutIsInvalid();
    std::erase_if(selected_, [this](ItemIndex index) { return !exists(index); });
}

void CollectionView::reloadItems(ns::Array paths) {
    for (const objc::Object path : paths) {
        const ItemIndex index = ItemIndex::of(path.assume<ns::IndexPath>());
        selected_.erase(index);
        if (const auto shown = visible_.find(index); shown != visible_.end()) {
            const Cell cell = shown->second;
            visible_.erase(shown);
            putAway(index, cell);
        }
    }
    layoutIsInvalid();
}

namespace {

std::set<ItemIndex> indexes(ns::Array paths) {
    std::set<ItemIndex> result;
    for (const objc::Object path : paths) {
        result.insert(ItemIndex::of(path.assume<ns::IndexPath>()));
    }
    return result;
}

} // namespace

void CollectionView::insertItems(ns::Array paths) {
    for (const ItemIndex inserted : indexes(paths)) {
        std::set<ItemIndex> moved;
        for (const ItemIndex index : selected_) {
            const bool behind = index.section == inserted.section && index.item >= inserted.item;
            moved.insert({index.section, index.item + (behind ? 1 : 0)});
        }
        selected_ = std::move(moved);
    }
    dataChanged();
}

void CollectionView::deleteItems(ns::Array paths) {
    const auto all = indexes(paths);
    std::for_each(all.rbegin(), all.rend(), [this](ItemIndex deleted) {
        selected_.erase(deleted);
        std::set<ItemIndex> moved;
        for (const ItemIndex index : selected_) {
            const bool behind = index.section == deleted.section && index.item > deleted.item;
            moved.insert({index.section, index.item - (behind ? 1 : 0)});
        }
        selected_ = std::move(moved);
    });
    dataChanged();
}

void CollectionView::performBatchUpdates(Updates updates, Completion completion) {
    if (updates) {
        updates();
    }
    dataChanged();
    if (!completion) {
        return;
    }
    // The block may still be on its maker's stack.
    Clock::shared().at(Clock::shared().now(),
                       [block = objc::Strong<Completion>(objc::Copied<Completion>(completion))] {
                           const objc::Pool pool;
                           block(true);
                       });
}

void CollectionView::registerCellClass(Class cls, ns::String identifier) {
    cellClasses_[identifier.utf16()] = cls;
}

ui::CollectionViewCell CollectionView::dequeue(ns::String identifier, ns::IndexPath path) {
    auto& unused = unused_[identifier.utf16()];
    Cell cell;
    if (!unused.empty()) {
        cell = std::move(unused.back());
        unused.pop_back();
        cell.send<"prepareForReuse">();
    } else if (const auto found = cellClasses_.find(identifier.utf16());
               found != cellClasses_.end() && found->second != nullptr) {
        cell = Cell::adopt(objc::send<"alloc", objc::Object>(objc::object(found->second))
                               .send<"initWithFrame:", ui::CollectionViewCell>(CGRect()));
        CollectionReusableView::of(cell).setReuseIdentifier(identifier);
    } else {
        ns::Exception::with(u"NSInternalInconsistencyException"_ns,
                            u"no class is registered for that cell identifier"_ns)
            .raise();
    }
    if (const auto attributes = attributesAt(path); attributes) {
        cell.setFrame(attributes.frame()); // the data source may place things by it
    }
    return cell.autoreleased();
}

void CollectionView::layoutIsInvalid() {
    layoutIsCurrent_ = false;
    self().setNeedsLayout();
}

void CollectionView::prepare() {
    if (!std::exchange(layoutIsCurrent_, true)) {
        const objc::Pool pool;
        layout_.send<"prepareLayout">();
        self().setContentSize(layout_.send<"collectionViewContentSize", CGSize>());
    }
}

void CollectionView::layoutSubviews() {
    super<"layoutSubviews">();
    if (backgroundView_) {
        backgroundView_.setFrame(self().bounds());
    }
    if (const CGSize size = self().bounds().size; size != std::exchange(latestSize_, size)) {
        layoutIsCurrent_ = false;
    }
    prepare();
    showVisibleCells();
}

void CollectionView::showVisibleCells() {
    const objc::Pool pool;
    std::map<ItemIndex, LayoutAttributes> wanted;
    for (const objc::Object one :
         layout_.send<"layoutAttributesForElementsInRect:", ns::Array>(self().bounds())) {
        const auto attributes = one.assume<LayoutAttributes>();
        wanted.emplace(ItemIndex::of(attributes.indexPath()), attributes);
    }
    for (auto shown = visible_.begin(); shown != visible_.end();) {
        if (wanted.contains(shown->first)) {
            ++shown;
            continue;
        }
        const auto [index, cell] = *shown;
        shown = visible_.erase(shown);
        putAway(index, cell);
    }
    for (const auto& [index, attributes] : wanted) {
        const auto shown = visible_.find(index);
        const Cell cell = shown != visible_.end() ? shown->second : cellFromSource(index);
        if (!cell) {
            continue;
        }
        visible_[index] = cell;
        cell.setFrame(attributes.frame());
        cell.setAlpha(attributes.alpha());
        cell.setHidden(attributes.isHidden());
    }
}

CollectionView::Cell CollectionView::cellFromSource(ItemIndex index) {
    const ns::IndexPath path = index.path();
    const Cell cell =
        dataSource_.send<"collectionView:cellForItemAtIndexPath:", ui::CollectionViewCell>(self(),
                                                                                           path);
    if (cell) {
        cell.send<"setSelected:">(objc::Boolean(selected_.contains(index)));
        cell.send<"setHighlighted:">(objc::Boolean(pressed_ == index));
        self().insertSubview(cell, static_cast<long>(visible_.size()) + (backgroundView_ ? 1 : 0));
        tell<"collectionView:willDisplayCell:forItemAtIndexPath:">(cell.raw(), path);
    }
    return cell;
}

void CollectionView::putAway(ItemIndex index, const Cell& cell) {
    cell.removeFromSuperview();
    const auto identifier = cell.send<"reuseIdentifier", ns::String>();
    if (identifier) {
        unused_[identifier.utf16()].push_back(cell);
    }
    tell<"collectionView:didEndDisplayingCell:forItemAtIndexPath:">(cell.raw(), index.path());
}

void CollectionView::putAllAway() {
    for (const auto& [index, cell] : std::exchange(visible_, {})) {
        putAway(index, cell);
    }
}

ui::CollectionViewCell CollectionView::cellAt(ns::IndexPath path) const {
    const auto found = path ? visible_.find(ItemIndex::of(path)) : visible_.end();
    return found != visible_.end() ? static_cast<ui::CollectionViewCell>(found->second)
                                   : ui::CollectionViewCell();
}

ns::IndexPath CollectionView::pathForCell(ui::CollectionViewCell cell) const {
    const auto found = std::ranges::find(visible_, cell, [](const auto& entry) {
        return static_cast<ui::CollectionViewCell>(entry.second);
    });
    return found != visible_.end() ? found->first.path() : ns::IndexPath();
}

ns::IndexPath CollectionView::pathAt(CGPoint point) {
    prepare();
    constexpr double least = 1e-3; // a rectangle that meets what is at the point
    for (const objc::Object one : layout_.send<"layoutAttributesForElementsInRect:", ns::Array>(
             CGRect{point, {least, least}})) {
        const auto attributes = one.assume<LayoutAttributes>();
        if (contains(attributes.frame(), point)) {
            return attributes.indexPath();
        }
    }
    return nullptr;
}

ns::Array CollectionView::visibleCells() const {
    const auto cells = ns::MutableArray::make();
    for (const auto& [index, cell] : visible_) {
        cells.add(cell);
    }
    return cells;
}

ns::Array CollectionView::visiblePaths() const {
    const auto paths = ns::MutableArray::make();
    for (const auto& [index, cell] : visible_) {
        paths.add(index.path());
    }
    return paths;
}

LayoutAttributes CollectionView::attributesAt(ns::IndexPath path) {
    prepare();
    return layout_.send<"layoutAttributesForItemAtIndexPath:", LayoutAttributes>(path);
}

} // namespace desktop
