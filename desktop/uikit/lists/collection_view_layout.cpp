// Flow layouts: asking for sizes, and answering where items are.
#include "desktop/uikit/lists/collection_view_layout.hpp"

#include "desktop/new_object.hpp"

#include <algorithm>

namespace desktop {
namespace {

ui::CollectionViewLayoutAttributes placed(ns::IndexPath path, CGRect frame) {
    const auto attributes = ui::CollectionViewLayoutAttributes::forCell(path);
    attributes.setFrame(frame);
    return attributes;
}

} // namespace

ui::CollectionViewLayoutAttributes CollectionViewLayoutAttributes::forCell(Class cls,
                                                                           ns::IndexPath path) {
    const auto attributes = newObject<ui::CollectionViewLayoutAttributes>(cls);
    of(attributes).indexPath_ = path;
    return attributes;
}

void CollectionViewLayout::invalidateLayout() { view_.send<"layoutIsInvalid">(); }

/// Lines are broken anew when their room changes.
bool CollectionViewLayout::invalidatesForBounds(CGRect bounds) const {
    return view_ && view_.bounds().size != bounds.size;
}

std::vector<objc::MethodRow> CollectionViewFlowLayout::methods() {
    using Self = CollectionViewFlowLayout;
    return {
        objc::property<"itemSize", &Self::itemSize_, &Self::changed>(),
        objc::property<"minimumInteritemSpacing", &Self::interitemSpacing_, &Self::changed>(),
        objc::property<"minimumLineSpacing", &Self::lineSpacing_, &Self::changed>(),
        objc::property<"sectionInset", &Self::sectionInset_, &Self::changed>(),
        objc::property<"scrollDirection", &Self::direction_, &Self::changed>(),
        objc::method<"prepareLayout", &Self::prepareLayout>(),
        objc::method<"collectionViewContentSize", &Self::contentSize>(),
        objc::method<"layoutAttributesForElementsInRect:", &Self::attributesIn>(),
        objc::method<"layoutAttributesForItemAtIndexPath:", &Self::attributesAt>(),
    };
}

template <objc::Literal Name, class Value, class... Arguments>
Value CollectionViewFlowLayout::asked(Value otherwise, Arguments... arguments) const {
    const auto view = self().send<"collectionView", ui::CollectionView>();
    const auto delegate = view.send<"delegate", objc::Object>();
    const SEL name = objc::selector<Name>();
    return delegate && delegate.respondsToSelector(name)
               ? objc::sendTo<Value>(delegate.raw(), name, view, self(), arguments...)
               : otherwise;
}

CGSize CollectionViewFlowLayout::turned(CGSize size) const {
    return isHorizontal() ? CGSize{size.height, size.width} : size;
}

CGRect CollectionViewFlowLayout::turned(CGRect rect) const {
    return isHorizontal() ? CGRect{{rect.origin.y, rect.origin.x}, turned(rect.size)} : rect;
}

/// What a line has room for.
double CollectionViewFlowLayout::breadth() const {
    const auto view = self().send<"collectionView", ui::CollectionView>();
    const auto inset = view.send<"adjustedContentInset", UIEdgeInsets>();
    const CGSize size = view.bounds().size;
    return isHorizontal() ? size.height - inset.top - inset.bottom
                          : size.width - inset.left - inset.right;
}

FlowSection CollectionViewFlowLayout::section(long index) const {
    FlowSection section;
    const auto inset = asked<"collectionView:layout:insetForSectionAtIndex:">(sectionInset_, index);
    section.inset =
        isHorizontal() ? UIEdgeInsets{inset.left, inset.top, inset.right, inset.bottom} : inset;
    section.itemSpacing = asked<"collectionView:layout:minimumInteritemSpacingForSectionAtIndex:">(
        interitemSpacing_, index);
    section.lineSpacing =
        asked<"collectionView:layout:minimumLineSpacingForSectionAtIndex:">(lineSpacing_, index);
    setItems(section, index);
    return section;
}

/// Items whose sizes nobody asks for, and those that turn out to be of one size, are a grid.
void CollectionViewFlowLayout::setItems(FlowSection& section, long index) const {
    constexpr auto sizeOf = &objc::selector<"collectionView:layout:sizeForItemAtIndexPath:">;
    const auto view = self().send<"collectionView", ui::CollectionView>();
    section.gridItems = static_cast<std::size_t>(view.numberOfItems(index));
    section.gridItemSize = turned(itemSize_);
    if (!view.send<"delegate", objc::Object>().respondsToSelector(sizeOf())) {
        return;
    }
    const auto count = static_cast<long>(std::exchange(section.gridItems, 0U));
    for (long item = 0; item < count; ++item) {
        const objc::Strong<ns::IndexPath> path = ns::IndexPath::forItem(item, index);
        section.items.push_back(
            turned(asked<"collectionView:layout:sizeForItemAtIndexPath:">(itemSize_, path.raw())));
    }
    if (std::ranges::adjacent_find(section.items, std::not_equal_to()) == section.items.end() &&
        !section.items.empty()) {
        section.gridItems = section.items.size();
        section.gridItemSize = section.items.front();
        section.items.clear();
    }
}

void CollectionViewFlowLayout::prepareLayout() {
    const auto view = self().send<"collectionView", ui::CollectionView>();
    placement_ = FlowPlacement(breadth());
    const long count = view.numberOfSections();
    for (long index = 0; index < count; ++index) {
        placement_.add(section(index));
    }
}

CGSize CollectionViewFlowLayout::contentSize() const {
    return turned(CGSize{breadth(), placement_.height()});
}

ns::Array CollectionViewFlowLayout::attributesIn(CGRect rect) const {
    const auto list = ns::MutableArray::make();
    for (const ItemIndex index : placement_.itemsIn(turned(rect))) {
        list.add(placed(index.path(), turned(placement_.frame(index))));
    }
    return list;
}

ui::CollectionViewLayoutAttributes
CollectionViewFlowLayout::attributesAt(ns::IndexPath path) const {
    const ItemIndex index = path ? ItemIndex::of(path) : ItemIndex{-1, -1};
    return placement_.contains(index) ? placed(path, turned(placement_.frame(index)))
                                      : ui::CollectionViewLayoutAttributes();
}

} // namespace desktop
