// UITraitCollection: traits as an object, and those that hold right now.
#pragma once

#include "bindings/uikit/trait_collection.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/block.hpp"
#include "desktop/class.hpp"
#include "desktop/uikit/traits/traits.hpp"

#include <optional>
#include <vector>

namespace desktop {

class TraitCollection : public PlatformClass<TraitCollection, ui::TraitCollection> {
public:
    static std::vector<objc::MethodRow> methods();

    static ui::TraitCollection with(const Traits& traits);
    /// The traits of `collection`; none told for nil.
    static Traits valueOf(ui::TraitCollection collection);

private:
    [[nodiscard]] ui::InterfaceStyle style() const { return traits_.style; }
    [[nodiscard]] ui::InterfaceLevel level() const { return traits_.level; }
    [[nodiscard]] ui::SizeClass horizontal() const { return traits_.horizontal; }
    [[nodiscard]] ui::SizeClass vertical() const { return traits_.vertical; }
    [[nodiscard]] double scale() const { return traits_.scale; }
    [[nodiscard]] ns::String contentSizeCategory() const {
        return ns::String::from(categoryOf(traits_.contentSize));
    }
    /// 0: a phone.
    [[nodiscard]] long idiom() const { return 0; }
    void performAsCurrent(objc::Block<void()> actions) const;
    [[nodiscard]] bool hasDifferentColour(ui::TraitCollection other) const;
    [[nodiscard]] bool contains(ui::TraitCollection other) const;
    [[nodiscard]] bool isEqual(objc::Object other) const;
    [[nodiscard]] unsigned long hash() const;
    [[nodiscard]] ns::String description() const;

    Traits traits_;
};

/// While there is one, these are the current traits: colours that adapt are what they are in them.
/// Main thread.
class CurrentTraits {
public:
    explicit CurrentTraits(const Traits& traits);
    CurrentTraits(const CurrentTraits&) = delete;
    CurrentTraits& operator=(const CurrentTraits&) = delete;
    ~CurrentTraits() { current() = former_; }

    /// Those in force; the screen's where nobody has said anything.
    [[nodiscard]] static Traits get();
    static void set(const Traits& traits) { current() = traits; }

private:
    static std::optional<Traits>& current();

    std::optional<Traits> former_;
};

} // namespace desktop
