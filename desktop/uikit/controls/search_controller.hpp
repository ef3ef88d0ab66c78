// UISearchController: tells of each change in its search bar.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/search_controller.hpp"

#include "desktop/class.hpp"

namespace desktop {

/// The bar stays where it was put: nothing is presented over the list.
class SearchController : public PlatformClass<SearchController, ui::SearchController> {
public:
    static constexpr auto methods() {
        using Self = SearchController;
        return std::array{
            objc::method<"initWithSearchResultsController:", &Self::initWithResults>(),
            objc::method<"searchResultsController", &Self::results_>(),
            objc::method<"searchBar", &Self::searchBar>(),
            objc::property<"searchResultsUpdater", &Self::updater_>(),
            objc::property<"obscuresBackgroundDuringPresentation", &Self::obscures_>(),
            objc::property<"hidesNavigationBarDuringPresentation", &Self::hidesBar_>(),
            objc::flag<"active", &Self::active_, &Self::activityChanged>(),
            objc::method<"searchFieldBegan", &Self::began>(),
            objc::method<"searchFieldChanged", &Self::update>(),
        };
    }

private:
    ui::SearchController initWithResults(ui::ViewController results);
    [[nodiscard]] ui::SearchBar searchBar() const { return bar_; }
    void began();
    void update();
    void activityChanged();

    objc::Strong<ui::ViewController> results_;
    objc::Strong<ui::SearchBar> bar_;
    objc::Weak<objc::Object> updater_;
    bool obscures_ = true;
    bool hidesBar_ = true;
    bool active_ = false;
};

} // namespace desktop
