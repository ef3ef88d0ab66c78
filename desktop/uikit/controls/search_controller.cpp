// The bar, whose delegate belongs to others: its field is watched instead.
#include "desktop/uikit/controls/search_controller.hpp"

#include "bindings/uikit/text_field.hpp"
#include "desktop/uikit/delegate_messages.hpp"

namespace desktop {

ui::SearchController SearchController::initWithResults(ui::ViewController results) {
    super<"init", ui::ViewController>();
    results_ = results;
    bar_ = ui::SearchBar::make<"initWithFrame:">(CGRect());
    const CGSize size = bar_.sizeThatFits({});
    bar_.setFrame({{}, size});
    const auto field = bar_.send<"searchTextField", ui::TextField>();
    field.addTarget(self(), objc::selector<"searchFieldBegan">(),
                    ui::ControlEvents::editingDidBegin);
    field.addTarget(self(), objc::selector<"searchFieldChanged">(),
                    ui::ControlEvents::editingChanged);
    return self();
}

void SearchController::began() {
    active_ = true;
    update();
}

void SearchController::update() {
    tell<"updateSearchResultsForSearchController:">(updater_, self());
}

/// A search that ends leaves no text.
void SearchController::activityChanged() {
    const auto field = bar_.send<"searchTextField", ui::TextField>();
    if (active_) {
        field.becomeFirstResponder();
        return;
    }
    bar_.setText(nullptr);
    field.resignFirstResponder();
    update();
}

} // namespace desktop
