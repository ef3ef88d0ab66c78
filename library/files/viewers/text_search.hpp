// Searching in the text viewer: a term, how often it stands there, and a step from one to the next.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/value.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/files/viewers/file_content_view_controller.hpp"

namespace wentra::files {

class TextSearch : public objc::Part<FileContentViewController> {
public:
    using Part::Part;
    static TextSearch& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"searchResults", &TextSearch::searchResults_>(),
            objc::property<"currentIndex", &TextSearch::currentIndex_>(),
            objc::property<"searchCountLabel", &TextSearch::countLabel_>(),
            objc::property<"previousButton", &TextSearch::previousButton_>(),
            objc::property<"nextButton", &TextSearch::nextButton_>(),
            objc::method<"searchButtonClicked:", &TextSearch::askForTerm>(),
            objc::method<"longPressSearchButton:", &TextSearch::longPressed>(),
            objc::method<"showSearchMenu", &TextSearch::offerTerms>(),
            objc::method<"findSearchResultsInTextView:", &TextSearch::find>(),
            objc::method<"highlightNextSearchResult", &TextSearch::highlightNext>(),
            objc::method<"highlightPreviousSearchResult", &TextSearch::highlightPrevious>(),
            objc::method<"highlightSearchResultAtIndex:", &TextSearch::highlight>(),
        };
    }

    /// The counter and the two buttons, and the button that opens the search.
    void add(ui::Button searchButton);
    /// The counter stands above that place, in the middle; the buttons at the view's foot.
    void layOut(CGRect below);

private:
    void addStep(objc::Strong<ui::Button>& button, ns::String title, SEL action);
    void askForTerm(objc::Object sender);
    void longPressed(ui::LongPressGestureRecognizer press);
    void offerTerms();
    void searchAndShow(ns::String term);
    void find(ns::String term);
    void highlightNext();
    void highlightPrevious();
    void show(unsigned long index);
    void highlight(long index);

    objc::Strong<ns::MutableArray> searchResults_ = ns::MutableArray::make();
    long currentIndex_ = -1;
    objc::Strong<ui::Label> countLabel_;
    objc::Strong<ui::Button> previousButton_;
    objc::Strong<ui::Button> nextButton_;
    objc::Strong<ui::Button> searchButton_;
};

} // namespace wentra::files
