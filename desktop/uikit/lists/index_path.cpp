// Sections, items and rows of index paths.
#include "desktop/uikit/lists/index_path.hpp"

#include "bindings/foundation/index_path.hpp"
#include "bindings/objc/hook.hpp"

#include <array>

namespace desktop {
namespace {

ns::IndexPath make(objc::Object cls, long item, long section) {
    const std::array indexes{static_cast<unsigned long>(section), static_cast<unsigned long>(item)};
    return cls.send<"indexPathWithIndexes:length:", ns::IndexPath>(indexes.data(), indexes.size());
}

template <unsigned long Position>
long index(ns::IndexPath path) {
    return static_cast<long>(path.send<"indexAtPosition:", unsigned long>(Position));
}

} // namespace

void installIndexPaths() {
    constexpr std::array changes{
        objc::classAddition<"NSIndexPath", "indexPathForItem:inSection:", &make>(),
        objc::classAddition<"NSIndexPath", "indexPathForRow:inSection:", &make>(),
        objc::addition<"section", &index<0>>(),
        objc::addition<"item", &index<1>>(),
        objc::addition<"row", &index<1>>(),
    };
    for (const objc::Change& change : changes) {
        objc::install(change);
    }
}

} // namespace desktop
