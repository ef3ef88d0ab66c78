// The grid of tiles that shows a text's tokens.
#pragma once

#include "bindings/objc/part.hpp"
#include "bindings/uikit/collection_view.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// The collection view and its tokens, one a tile, in a single section. Nothing is there before
/// `add`.
class Tiles : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static Tiles& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"wordsCollectionView", &Tiles::grid_>(),
            objc::property<"wordsArray", &Tiles::tokens_>(),
            objc::property<"originalWordsArray", &Tiles::originalTokens_>(),
            objc::property<"textToDisplay", &Tiles::textToDisplay_>(),
            objc::method<"updateWordsArray:", &Tiles::show>(),
            objc::method<"collectionView:numberOfItemsInSection:", &Tiles::count>(),
            objc::method<"collectionView:cellForItemAtIndexPath:", &Tiles::tile>(),
            objc::method<"collectionView:layout:sizeForItemAtIndexPath:", &Tiles::size>(),
        };
    }

    /// Puts a grid without tokens into the controller's view. `shade` is the alpha of its
    /// background.
    void add(CGRect frame, double shade);
    /// Shows other tokens; what is picked stays.
    void show(ns::Array tokens);
    /// Places the grid and lays it out at once.
    void setFrame(CGRect frame) const;

    [[nodiscard]] ui::CollectionView view() const { return grid_; }
    [[nodiscard]] ns::Array tokens() const { return tokens_; }
    /// The token of a tile; nil beyond the text.
    [[nodiscard]] ns::String tokenAt(ns::IndexPath path) const;
    /// -1 while there are no tokens.
    [[nodiscard]] long lastRow() const { return static_cast<long>(tokens_.count()) - 1; }
    /// Colours a tile, if it is on the screen.
    void colour(ns::IndexPath path, ui::Color colour) const;

private:
    [[nodiscard]] long count(ui::CollectionView, long) const { return lastRow() + 1; }
    [[nodiscard]] ui::CollectionViewCell tile(ui::CollectionView grid, ns::IndexPath path) const;
    [[nodiscard]] CGSize size(ui::CollectionView grid, objc::Object, ns::IndexPath path) const;

    objc::Strong<ui::CollectionView> grid_;
    objc::Strong<ns::Array> tokens_; // not changed in place
    objc::Strong<ns::Array> originalTokens_;
    objc::Strong<ns::String> textToDisplay_;
};

} // namespace wentra::toolbox
