// Trait collections: making, comparing and describing them.
#include "desktop/uikit/traits/trait_collection.hpp"

#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/values/immutable.hpp"

#include <array>
#include <cstdio>

namespace desktop {
namespace {

ui::TraitCollection tellingContentSize(Class, ns::String category) {
    Traits traits;
    traits.contentSize = contentSizeOf(category.utf16());
    return TraitCollection::with(traits);
}

template <auto Member>
ui::TraitCollection telling(Class, std::remove_cvref_t<decltype(Traits().*Member)> value) {
    Traits traits;
    traits.*Member = value;
    return TraitCollection::with(traits);
}

ui::TraitCollection merging(Class, ns::ArrayOf<ui::TraitCollection> collections) {
    Traits traits;
    for (const objc::Object one : collections) {
        traits = merged(traits, TraitCollection::valueOf(one.as<ui::TraitCollection>()));
    }
    return TraitCollection::with(traits);
}

ui::TraitCollection current(Class) { return TraitCollection::with(CurrentTraits::get()); }

void setCurrent(Class, ui::TraitCollection collection) {
    CurrentTraits::set(merged(screenTraits(), TraitCollection::valueOf(collection)));
}

} // namespace

std::vector<objc::MethodRow> TraitCollection::methods() {
    return {
        objc::classMethod<"traitCollectionWithUserInterfaceStyle:", &telling<&Traits::style>>(),
        objc::classMethod<"traitCollectionWithUserInterfaceLevel:", &telling<&Traits::level>>(),
        objc::classMethod<"traitCollectionWithHorizontalSizeClass:",
                          &telling<&Traits::horizontal>>(),
        objc::classMethod<"traitCollectionWithVerticalSizeClass:", &telling<&Traits::vertical>>(),
        objc::classMethod<"traitCollectionWithDisplayScale:", &telling<&Traits::scale>>(),
        objc::classMethod<"traitCollectionWithPreferredContentSizeCategory:",
                          &tellingContentSize>(),
        objc::classMethod<"traitCollectionWithTraitsFromCollections:", &merging>(),
        objc::classMethod<"currentTraitCollection", &current>(),
        objc::classMethod<"setCurrentTraitCollection:", &setCurrent>(),
        objc::method<"userInterfaceStyle", &TraitCollection::style>(),
        objc::method<"userInterfaceLevel", &TraitCollection::level>(),
        objc::method<"horizontalSizeClass", &TraitCollection::horizontal>(),
        objc::method<"verticalSizeClass", &TraitCollection::vertical>(),
        objc::method<"preferredContentSizeCategory", &TraitCollection::contentSizeCategory>(),
        objc::method<"displayScale", &TraitCollection::scale>(),
        objc::method<"userInterfaceIdiom", &TraitCollection::idiom>(),
        objc::method<"performAsCurrentTraitCollection:", &TraitCollection::performAsCurrent>(),
        objc::method<"hasDifferentColorAppearanceComparedToTraitCollection:",
                     &TraitCollection::hasDifferentColour>(),
        objc::method<"containsTraitsInCollection:", &TraitCollection::contains>(),
        objc::method<"isEqual:", &TraitCollection::isEqual>(),
        objc::method<"hash", &TraitCollection::hash>(),
        objc::method<"description", &TraitCollection::description>(),
        copyIsSelf(),
    };
}

ui::TraitCollection TraitCollection::with(const Traits& traits) {
    const auto collection = ui::TraitCollection::make();
    of(collection).traits_ = traits;
    return collection;
}

Traits TraitCollection::valueOf(ui::TraitCollection collection) {
    return collection ? of(collection).traits_ : Traits();
}

void TraitCollection::performAsCurrent(objc::Block<void()> actions) const {
    const CurrentTraits current(merged(screenTraits(), traits_));
    if (actions) {
        actions();
    }
}

bool TraitCollection::hasDifferentColour(ui::TraitCollection other) const {
    return differInColour(traits_, valueOf(other));
}

bool TraitCollection::contains(ui::TraitCollection other) const {
    return merged(traits_, valueOf(other)) == traits_;
}

bool TraitCollection::isEqual(objc::Object other) const {
    const auto collection = other.as<ui::TraitCollection>();
    return collection && of(collection).traits_ == traits_;
}

unsigned long TraitCollection::hash() const {
    constexpr unsigned long kinds = 3;
    auto hash = static_cast<unsigned long>(traits_.style);
    hash = hash * kinds + static_cast<unsigned long>(traits_.horizontal);
    return hash * kinds + static_cast<unsigned long>(traits_.vertical);
}

ns::String TraitCollection::description() const {
    std::array<char, 160> text{};
    std::snprintf(text.data(), text.size(),
                  "<UITraitCollection: style %ld, level %ld, size classes %ld × %ld, scale %g>",
                  static_cast<long>(traits_.style), static_cast<long>(traits_.level),
                  static_cast<long>(traits_.horizontal), static_cast<long>(traits_.vertical),
                  traits_.scale);
    return ns::String::fromUtf8(text.data());
}

CurrentTraits::CurrentTraits(const Traits& traits) : former_(current()) { current() = traits; }

Traits CurrentTraits::get() { return current().value_or(screenTraits()); }

std::optional<Traits>& CurrentTraits::current() {
    static std::optional<Traits> traits;
    return traits;
}

} // namespace desktop
