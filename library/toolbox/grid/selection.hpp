// Which tiles of the word grid are picked.
#pragma once

#include "library/toolbox/grid/tiles.hpp"

#include "bindings/foundation/set.hpp"

#include <optional>

namespace wentra::toolbox {

/// How a tile was picked; the two look different.
enum class PickedBy { tap, slide };

/// The picked tiles and their tokens. Both collections are handed out by their properties and may
/// be changed or replaced from outside at any time, so nothing that is known of them is kept.
class Selection : public objc::Part<FloatingViewController> {
public:
    Selection(FloatingViewController whole, const Tiles& tiles) : Part(whole), tiles_(tiles) {}
    static Selection& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"selectedIndexPaths", &Selection::paths_>(),
            objc::property<"selectedWords", &Selection::tokens_>(),
            objc::property<"selectedString", &Selection::lastToken_>(),
        };
    }

    /// From now on nothing is picked.
    void begin();

    /// The picked tokens in the order in which they were picked.
    [[nodiscard]] ns::Array tokens() const { return tokens_; }
    /// The picked tokens without anything between them; what the pasteboard holds when none is
    /// picked, empty when that is no text.
    [[nodiscard]] ns::String pickedOrCopied() const;
    /// The picked tokens are no longer picked; the tiles stay as they are.
    void forgetTokens() const { tokens_.removeAll(); }
    [[nodiscard]] bool contains(ns::IndexPath path) const { return paths_.contains(path); }
    /// A picked row that is not from `first` to `last`, any one. What it takes to find depends on
    /// the number of rows between the two, not on the picked ones.
    [[nodiscard]] std::optional<long> outside(long first, long last) const;

    /// Colours the tile and remembers its token as picked. Does nothing for a path beyond the text.
    void pick(ns::IndexPath path, PickedBy gesture);
    /// Takes the tile out of the picked ones, and every token that equals its own out of the picked
    /// text. A path beyond the text, left over from a longer one, is forgotten.
    void unpick(ns::IndexPath path) const;
    /// The same for many tiles in one pass, once the picked text was forgotten.
    void unpickAll(ns::Array paths) const;
    /// Nothing is picked any more, neither tokens nor tiles.
    void clear() const;

private:
    const Tiles& tiles_;
    objc::Strong<ns::MutableSet> paths_; // may hold tiles of an earlier text
    objc::Strong<ns::MutableArray> tokens_;
    objc::Strong<ns::String> lastToken_;
};

} // namespace wentra::toolbox
