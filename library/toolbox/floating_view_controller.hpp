// ZKFloatingViewController: the toolbox panel's body, the word grid and the tools' buttons.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/set.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::toolbox {

/// A handle of the controller. Its class keeps the state, as properties; what it does is added in
/// categories, each in the file of its subject. Main thread only.
struct FloatingViewController
    : objc::Kind<FloatingViewController, "ZKFloatingViewController", ui::ViewController> {
    using Kind::Kind;

    // The word grid and what is picked in it.

    [[nodiscard]] ui::CollectionView wordsCollectionView() const {
        return send<"wordsCollectionView", ui::CollectionView>();
    }
    void setWordsCollectionView(ui::CollectionView view) const {
        send<"setWordsCollectionView:">(view);
    }
    /// The tokens, one a tile.
    [[nodiscard]] ns::Array wordsArray() const { return send<"wordsArray", ns::Array>(); }
    void setWordsArray(ns::Array words) const { send<"setWordsArray:">(words); }
    /// Shows other tokens; what is picked stays.
    void updateWordsArray(ns::Array words) const { send<"updateWordsArray:">(words); }
    /// The picked tokens in the order in which they were picked.
    [[nodiscard]] ns::MutableArray selectedWords() const {
        return send<"selectedWords", ns::MutableArray>();
    }
    void setSelectedWords(ns::MutableArray words) const { send<"setSelectedWords:">(words); }
    /// The picked tiles. May hold tiles of an earlier text.
    [[nodiscard]] ns::MutableSet selectedIndexPaths() const {
        return send<"selectedIndexPaths", ns::MutableSet>();
    }
    void setSelectedIndexPaths(ns::MutableSet paths) const {
        send<"setSelectedIndexPaths:">(paths);
    }
    /// The token picked last.
    [[nodiscard]] ns::String selectedString() const { return send<"selectedString", ns::String>(); }
    void setSelectedString(ns::String word) const { send<"setSelectedString:">(word); }

    // Speech.

    /// The AVSpeechSynthesizer; nil before the view is loaded.
    [[nodiscard]] objc::Object synth() const { return send<"synth", objc::Object>(); }
    void setSynth(objc::Object synthesizer) const { send<"setSynth:">(synthesizer); }
};

/// Declares the class.
void registerFloatingViewController();

} // namespace wentra::toolbox
