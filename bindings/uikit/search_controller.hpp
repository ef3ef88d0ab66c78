// UISearchController: a search bar, and what it finds.
#pragma once

#include "bindings/uikit/search_bar.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct SearchController : objc::Kind<SearchController, "UISearchController", ViewController> {
    using Kind::Kind;

    /// Results are shown by that controller; nil: by whoever has the bar.
    static SearchController withResults(ViewController results) {
        return make<"initWithSearchResultsController:">(results);
    }
    [[nodiscard]] SearchBar searchBar() const { return send<"searchBar", SearchBar>(); }
    /// Told by `updateSearchResultsForSearchController:`. Not retained.
    void setSearchResultsUpdater(objc::Object updater) const {
        send<"setSearchResultsUpdater:">(updater);
    }
    void setObscuresBackgroundDuringPresentation(bool obscures) const {
        send<"setObscuresBackgroundDuringPresentation:">(obscures);
    }
};

} // namespace ui
