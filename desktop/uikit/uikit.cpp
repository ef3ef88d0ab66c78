// Setting UIKit up, and drawing the screen.
#include "desktop/uikit/uikit.hpp"

#include "desktop/quartzcore/layer.hpp"
#include "desktop/uikit/activity/activity_view_controller.hpp"
#include "desktop/uikit/alerts/alert_action.hpp"
#include "desktop/uikit/alerts/alert_controller.hpp"
#include "desktop/uikit/alerts/alert_view.hpp"
#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/application/pasteboard.hpp"
#include "desktop/uikit/application/rotation.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/application/screen_image.hpp"
#include "desktop/uikit/application/transition_coordinator.hpp"
#include "desktop/uikit/application/window.hpp"
#include "desktop/uikit/application/window_scene.hpp"
#include "desktop/uikit/constraints/layout_anchor.hpp"
#include "desktop/uikit/constraints/layout_guide.hpp"
#include "desktop/uikit/contextmenus/action.hpp"
#include "desktop/uikit/contextmenus/context_menu_configuration.hpp"
#include "desktop/uikit/contextmenus/context_menu_interaction.hpp"
#include "desktop/uikit/contextmenus/context_menu_view.hpp"
#include "desktop/uikit/contextmenus/menu.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/controls/button.hpp"
#include "desktop/uikit/controls/clear_button.hpp"
#include "desktop/uikit/controls/control.hpp"
#include "desktop/uikit/controls/page_control.hpp"
#include "desktop/uikit/controls/picker_view.hpp"
#include "desktop/uikit/controls/progress_view.hpp"
#include "desktop/uikit/controls/search_bar.hpp"
#include "desktop/uikit/controls/search_controller.hpp"
#include "desktop/uikit/controls/slider.hpp"
#include "desktop/uikit/controls/switch.hpp"
#include "desktop/uikit/events/event.hpp"
#include "desktop/uikit/events/responder.hpp"
#include "desktop/uikit/events/touch.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/gestures/long_press_gesture_recognizer.hpp"
#include "desktop/uikit/gestures/pan_gesture_recognizer.hpp"
#include "desktop/uikit/gestures/pinch_gesture_recognizer.hpp"
#include "desktop/uikit/gestures/swipe_gesture_recognizer.hpp"
#include "desktop/uikit/gestures/tap_gesture_recognizer.hpp"
#include "desktop/uikit/keyboard/keyboard_view.hpp"
#include "desktop/uikit/lists/collection_view.hpp"
#include "desktop/uikit/lists/collection_view_cell.hpp"
#include "desktop/uikit/lists/collection_view_layout.hpp"
#include "desktop/uikit/lists/contextual_action.hpp"
#include "desktop/uikit/lists/index_path.hpp"
#include "desktop/uikit/lists/list_controllers.hpp"
#include "desktop/uikit/lists/swipe_actions_configuration.hpp"
#include "desktop/uikit/lists/table_view.hpp"
#include "desktop/uikit/menus/callout_bar.hpp"
#include "desktop/uikit/menus/menu_controller.hpp"
#include "desktop/uikit/navigation/bar_button_item.hpp"
#include "desktop/uikit/navigation/navigation_bar.hpp"
#include "desktop/uikit/navigation/navigation_controller.hpp"
#include "desktop/uikit/navigation/navigation_item.hpp"
#include "desktop/uikit/navigation/toolbar.hpp"
#include "desktop/uikit/presentation/popover_presentation_controller.hpp"
#include "desktop/uikit/presentation/transition_view.hpp"
#include "desktop/uikit/scrolling/scroll_view.hpp"
#include "desktop/uikit/text/layout_manager.hpp"
#include "desktop/uikit/text/text_effects_window.hpp"
#include "desktop/uikit/text/text_field.hpp"
#include "desktop/uikit/text/text_position.hpp"
#include "desktop/uikit/text/text_selection_view.hpp"
#include "desktop/uikit/text/text_storage.hpp"
#include "desktop/uikit/text/text_view.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/font.hpp"
#include "desktop/uikit/values/geometry_values.hpp"
#include "desktop/uikit/values/image.hpp"
#include "desktop/uikit/values/string_drawing.hpp"
#include "desktop/uikit/values/symbol_configuration.hpp"
#include "desktop/uikit/views/image_view.hpp"
#include "desktop/uikit/views/label.hpp"
#include "desktop/uikit/views/stack_view.hpp"
#include "desktop/uikit/views/view.hpp"

#include "bindings/objc/pool.hpp"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

namespace desktop::uikit {
namespace {

/// Registers classes in that order: superclasses first.
template <class... Classes>
void registerAll() {
    (Classes::registerClass(), ...);
}

struct NamedOrientation {
    std::string_view name;
    ui::InterfaceOrientation orientation;
};

constexpr std::array<NamedOrientation, 4> orientations{{
    {"portrait", ui::InterfaceOrientation::portrait},
    {"portraitUpsideDown", ui::InterfaceOrientation::portraitUpsideDown},
    {"landscapeLeft", ui::InterfaceOrientation::landscapeLeft},
    {"landscapeRight", ui::InterfaceOrientation::landscapeRight},
}};

} // namespace

void registerClasses() {
    const objc::Pool pool;
    installIndexPaths();
    registerAll<TraitCollection, Color, UIFont, UIImage, Layer, Screen, WindowScene, Pasteboard,
                NavigationItem, TextStorage, TextContainer, LayoutManager, TextPosition, TextRange,
                TextEdit, MenuItem, MenuController, Responder, Application, ViewController, View,
                Window, TextEffectsWindow, KeyboardView, CalloutBar, TextSelectionView, Label,
                ImageView, ScrollView, StackView, NavigationBar, Control, Button, ClearButton,
                PageControl, TextField, SearchBar, SearchController, TextView, Touch, Event,
                GestureRecognizer, TapGestureRecognizer, LongPressGestureRecognizer,
                PanGestureRecognizer, PinchGestureRecognizer, SwipeGestureRecognizer, ScrollPan,
                CollectionViewLayoutAttributes, CollectionViewLayout, CollectionViewFlowLayout,
                CollectionReusableView, CollectionViewCell, CollectionView, LayoutConstraint,
                LayoutGuide, LayoutAnchor, XAnchor, YAnchor, Dimension, PickerColumn, PickerView,
                ProgressView, Switch, Slider, ContextualAction, SwipeActionsConfiguration,
                TableViewCell, TableView, TableViewController, CollectionViewController>();
    // Controllers, and what they are made of.
    registerAll<SymbolConfiguration, BarButtonItem, PresentationController,
                PopoverPresentationController, AlertAction, NavigationController, AlertController,
                TransitionView, LayoutContainer, SheetView, DimmingView, PopoverView, AlertView,
                Toolbar, AlertRow, ActivityViewController, TransitionCoordinator>();
    registerAll<MenuElement, Action, Menu, ContextMenuConfiguration, ContextMenuInteraction,
                ContextMenuView>();
    installStringDrawing();
    installGeometryValues();
}

void startApplication(const Device& device) {
    const objc::Pool pool;
    ScreenGeometry::current() = ScreenGeometry::upright(device);
    ui::Application::sharedApplication();
}

void setAppearance(Appearance appearance) {
    const objc::Pool pool;
    setScreenStyle(appearance == Appearance::dark ? ui::InterfaceStyle::dark
                                                  : ui::InterfaceStyle::light);
}

Appearance appearance() {
    return screenTraits().style == ui::InterfaceStyle::dark ? Appearance::dark : Appearance::light;
}

bool turnTo(std::string_view orientation) {
    const objc::Pool pool;
    const auto* found = std::ranges::find(orientations, orientation, &NamedOrientation::name);
    if (found != orientations.end()) {
        rotate(found->orientation);
    }
    return found != orientations.end();
}

std::string_view orientation() {
    return std::ranges::find(orientations, ScreenGeometry::current().orientation,
                             &NamedOrientation::orientation)
        ->name;
}

void layoutWindows() {
    const auto& visible = Application::shared().visibleWindows();
    const std::vector<objc::Strong<ui::Window>> windows(visible.begin(), visible.end());
    for (const auto& window : windows) { // a copy: layout may show and close windows
        window.layoutIfNeeded();
    }
}

void renderScreen(const std::string& pngFile) {
    const objc::Pool pool;
    ScreenImage screen(ScreenGeometry::current().scale);
    screen.refresh();
    if (!screen.snapshot().savePng(pngFile)) {
        throw std::runtime_error("cannot write " + pngFile);
    }
}

} // namespace desktop::uikit
