// UITraitCollection.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ui {

/// Appearances; the platform's numbers.
enum class InterfaceStyle : long { unspecified = 0, light = 1, dark = 2 };

/// How much room there is in one direction; the platform's numbers.
enum class SizeClass : long { unspecified = 0, compact = 1, regular = 2 };

/// How far in front something is: presented before the rest, it is elevated. The platform's
/// numbers.
enum class InterfaceLevel : long { unspecified = -1, base = 0, elevated = 1 };

struct TraitCollection : objc::Kind<TraitCollection, "UITraitCollection"> {
    using Kind::Kind;

    /// What holds where drawing or layout is under way.
    static TraitCollection current() {
        return sendClass<"currentTraitCollection", TraitCollection>();
    }
    /// Tells the style only.
    static TraitCollection with(InterfaceStyle style) {
        return sendClass<"traitCollectionWithUserInterfaceStyle:", TraitCollection>(style);
    }
    /// Tells the level only.
    static TraitCollection with(InterfaceLevel level) {
        return sendClass<"traitCollectionWithUserInterfaceLevel:", TraitCollection>(level);
    }
    [[nodiscard]] InterfaceStyle userInterfaceStyle() const {
        return send<"userInterfaceStyle", InterfaceStyle>();
    }
    [[nodiscard]] InterfaceLevel userInterfaceLevel() const {
        return send<"userInterfaceLevel", InterfaceLevel>();
    }
    [[nodiscard]] SizeClass verticalSizeClass() const {
        return send<"verticalSizeClass", SizeClass>();
    }
};

} // namespace ui
