// ZKFloatingViewController: the toolbox panel's body, the word grid and the tools' buttons.
#pragma once

#include "bindings/avfaudio/speech_synthesizer.hpp"
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
    void setWordsCollectionView(ui::CollectionView value) const {
        send<"setWordsCollectionView:">(value);
    }
    /// The tokens, strings, one a tile. Not changed in place.
    [[nodiscard]] ns::Array wordsArray() const { return send<"wordsArray", ns::Array>(); }
    void setWordsArray(ns::Array value) const { send<"setWordsArray:">(value); }
    /// Shows other tokens; what is picked stays.
    void updateWordsArray(ns::Array words) const { send<"updateWordsArray:">(words); }
    /// The picked tokens in the order in which they were picked.
    [[nodiscard]] ns::MutableArray selectedWords() const {
        return send<"selectedWords", ns::MutableArray>();
    }
    void setSelectedWords(ns::MutableArray value) const { send<"setSelectedWords:">(value); }
    /// The picked tiles. May hold tiles of an earlier text.
    [[nodiscard]] ns::MutableSet selectedIndexPaths() const {
        return send<"selectedIndexPaths", ns::MutableSet>();
    }
    void setSelectedIndexPaths(ns::MutableSet value) const {
        send<"setSelectedIndexPaths:">(value);
    }
    /// The token picked last.
    [[nodiscard]] ns::String selectedString() const { return send<"selectedString", ns::String>(); }
    void setSelectedString(ns::String value) const { send<"setSelectedString:">(value); }
    /// Where the slide in progress began.
    [[nodiscard]] ns::IndexPath startIndexPath() const {
        return send<"startIndexPath", ns::IndexPath>();
    }
    void setStartIndexPath(ns::IndexPath value) const { send<"setStartIndexPath:">(value); }
    [[nodiscard]] bool isSlideSelecting() const { return send<"isSlideSelecting", bool>(); }
    void setIsSlideSelecting(bool yes) const { send<"setIsSlideSelecting:">(yes); }
    [[nodiscard]] bool isAllSelected() const { return send<"isAllSelected", bool>(); }
    void setIsAllSelected(bool yes) const { send<"setIsAllSelected:">(yes); }
    [[nodiscard]] ui::Label totalWordsLabel() const { return send<"totalWordsLabel", ui::Label>(); }
    void setTotalWordsLabel(ui::Label label) const { send<"setTotalWordsLabel:">(label); }
    [[nodiscard]] ui::Label totalSymbolsLabel() const {
        return send<"totalSymbolsLabel", ui::Label>();
    }
    void setTotalSymbolsLabel(ui::Label label) const { send<"setTotalSymbolsLabel:">(label); }
    [[nodiscard]] ui::Label selectedWordsLabel() const {
        return send<"selectedWordsLabel", ui::Label>();
    }
    void setSelectedWordsLabel(ui::Label label) const { send<"setSelectedWordsLabel:">(label); }
    [[nodiscard]] ui::Label selectedSymbolsLabel() const {
        return send<"selectedSymbolsLabel", ui::Label>();
    }
    void setSelectedSymbolsLabel(ui::Label label) const { send<"setSelectedSymbolsLabel:">(label); }

    // The tools' buttons.

    [[nodiscard]] ui::Button wzjhButton() const { return send<"wzjhButton", ui::Button>(); }
    void setWzjhButton(ui::Button button) const { send<"setWzjhButton:">(button); }
    [[nodiscard]] ui::Button zzjsButton() const { return send<"zzjsButton", ui::Button>(); }
    void setZzjsButton(ui::Button button) const { send<"setZzjsButton:">(button); }
    [[nodiscard]] ui::Button ljtzButton() const { return send<"ljtzButton", ui::Button>(); }
    void setLjtzButton(ui::Button button) const { send<"setLjtzButton:">(button); }
    [[nodiscard]] ui::Button selectAllButton() const {
        return send<"selectAllButton", ui::Button>();
    }
    void setSelectAllButton(ui::Button button) const { send<"setSelectAllButton:">(button); }
    [[nodiscard]] ui::Button shareButton() const { return send<"shareButton", ui::Button>(); }
    void setShareButton(ui::Button button) const { send<"setShareButton:">(button); }
    [[nodiscard]] ui::Button umzhButton() const { return send<"umzhButton", ui::Button>(); }
    void setUmzhButton(ui::Button button) const { send<"setUmzhButton:">(button); }
    [[nodiscard]] ui::Button pasteButton() const { return send<"pasteButton", ui::Button>(); }
    void setPasteButton(ui::Button button) const { send<"setPasteButton:">(button); }
    [[nodiscard]] ui::Button explodeButton() const { return send<"explodeButton", ui::Button>(); }
    void setExplodeButton(ui::Button button) const { send<"setExplodeButton:">(button); }
    [[nodiscard]] ui::Button startRecordButton() const {
        return send<"startRecordButton", ui::Button>();
    }
    void setStartRecordButton(ui::Button button) const { send<"setStartRecordButton:">(button); }
    [[nodiscard]] ui::Button stopRecordButton() const {
        return send<"stopRecordButton", ui::Button>();
    }
    void setStopRecordButton(ui::Button button) const { send<"setStopRecordButton:">(button); }
    void setIsExploded(bool yes) const { send<"setIsExploded:">(yes); }

    // The panel's sizes.

    /// The preferences as they were loaded, with the sizes as they were changed since.
    [[nodiscard]] ns::MutableDictionary currentValues() const {
        return send<"currentValues", ns::MutableDictionary>();
    }
    void setCurrentValues(ns::MutableDictionary value) const { send<"setCurrentValues:">(value); }
    /// The preferences as they were when the view was loaded.
    [[nodiscard]] ns::MutableDictionary originalValues() const {
        return send<"originalValues", ns::MutableDictionary>();
    }
    void setOriginalValues(ns::MutableDictionary value) const { send<"setOriginalValues:">(value); }
    void updateViewSize() const { send<"updateViewSize">(); }

    // The crosshair and the editor of the host filter.

    [[nodiscard]] ui::Label coordinateLabel() const { return send<"coordinateLabel", ui::Label>(); }
    void setCoordinateLabel(ui::Label label) const { send<"setCoordinateLabel:">(label); }
    [[nodiscard]] ui::View lineViewX() const { return send<"lineViewX", ui::View>(); }
    void setLineViewX(ui::View view) const { send<"setLineViewX:">(view); }
    [[nodiscard]] ui::View lineViewY() const { return send<"lineViewY", ui::View>(); }
    void setLineViewY(ui::View view) const { send<"setLineViewY:">(view); }
    /// Nil while the editor is closed.
    [[nodiscard]] ui::TextView adstextView() const { return send<"adstextView", ui::TextView>(); }
    void setAdstextView(ui::TextView value) const { send<"setAdstextView:">(value); }

    // Other tools.

    /// Nil before the view is loaded.
    [[nodiscard]] av::SpeechSynthesizer synth() const {
        return send<"synth", av::SpeechSynthesizer>();
    }
    void setSynth(av::SpeechSynthesizer synthesizer) const { send<"setSynth:">(synthesizer); }
};

/// Declares the class with its categories.
void registerFloatingViewController();

} // namespace wentra::toolbox
