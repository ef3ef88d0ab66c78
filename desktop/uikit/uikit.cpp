// Setting UIKit up, and drawing the screen.
#include "desktop/uikit/uikit.hpp"

#include "desktop/avfaudio/speech_synthesizer.hpp"
#include "desktop/quartzcore/layer.hpp"
#include "desktop/safariservices/safari_view_controller.hpp"
#include "desktop/uikit/activity/activity_view_controller.hpp"
#include "desktop/uikit/alerts/alert_action.hpp"
#include "desktop/uikit/alerts/alert_controller.hpp"
#include "desktop/uikit/alerts/alert_view.hpp"
#include "desktop/uikit/application.hpp"
#include "desktop/uikit/button.hpp"
#include "desktop/uikit/callout_bar.hpp"
#include "desktop/uikit/clear_button.hpp"
#include "desktop/uikit/collection_view.hpp"
#include "desktop/uikit/collection_view_cell.hpp"
#include "desktop/uikit/collection_view_layout.hpp"
#include "desktop/uikit/collections/index_path.hpp"
#include "desktop/uikit/color.hpp"
#include "desktop/uikit/constraints/layout_anchor.hpp"
#include "desktop/uikit/constraints/layout_guide.hpp"
#include "desktop/uikit/control.hpp"
#include "desktop/uikit/event.hpp"
#include "desktop/uikit/font.hpp"
#include "desktop/uikit/geometry_values.hpp"
#include "desktop/uikit/gesture_recognizer.hpp"
#include "desktop/uikit/image.hpp"
#include "desktop/uikit/image_view.hpp"
#include "desktop/uikit/keyboard_view.hpp"
#include "desktop/uikit/label.hpp"
#include "desktop/uikit/layout_manager.hpp"
#include "desktop/uikit/list_controllers.hpp"
#include "desktop/uikit/long_press_gesture_recognizer.hpp"
#include "desktop/uikit/menu_controller.hpp"
#include "desktop/uikit/navigation/bar_button_item.hpp"
#include "desktop/uikit/navigation/navigation_bar.hpp"
#include "desktop/uikit/navigation/navigation_controller.hpp"
#include "desktop/uikit/navigation/navigation_item.hpp"
#include "desktop/uikit/navigation/toolbar.hpp"
#include "desktop/uikit/pan_gesture_recognizer.hpp"
#include "desktop/uikit/pasteboard.hpp"
#include "desktop/uikit/picker_view.hpp"
#include "desktop/uikit/pinch_gesture_recognizer.hpp"
#include "desktop/uikit/presentation/popover_presentation_controller.hpp"
#include "desktop/uikit/presentation/transition_view.hpp"
#include "desktop/uikit/responder.hpp"
#include "desktop/uikit/screen.hpp"
#include "desktop/uikit/screen_image.hpp"
#include "desktop/uikit/scroll_view.hpp"
#include "desktop/uikit/stack_view.hpp"
#include "desktop/uikit/string_drawing.hpp"
#include "desktop/uikit/swipe_gesture_recognizer.hpp"
#include "desktop/uikit/symbol_configuration.hpp"
#include "desktop/uikit/table_view.hpp"
#include "desktop/uikit/tap_gesture_recognizer.hpp"
#include "desktop/uikit/text_effects_window.hpp"
#include "desktop/uikit/text_field.hpp"
#include "desktop/uikit/text_position.hpp"
#include "desktop/uikit/text_selection_view.hpp"
#include "desktop/uikit/text_storage.hpp"
#include "desktop/uikit/text_view.hpp"
#include "desktop/uikit/touch.hpp"
#include "desktop/uikit/view.hpp"
#include "desktop/uikit/view_controller.hpp"
#include "desktop/uikit/window.hpp"
#include "desktop/uikit/window_scene.hpp"
#include "desktop/webkit/web_view.hpp"

#include "bindings/objc/pool.hpp"

#include <stdexcept>
#include <vector>

namespace desktop::uikit {
namespace {

/// Registers classes in that order: superclasses first.
template <class... Classes>
void registerAll() {
    (Classes::registerClass(), ...);
}

/// A phone without a notch has a plain status bar and no home indicator to keep clear of.
UIEdgeInsets safeAreaOf(CGSize size) {
    constexpr double shortestWithNotch = 780;
    return size.height >= shortestWithNotch ? UIEdgeInsets{47, 0, 34, 0}
                                            : UIEdgeInsets{20, 0, 0, 0};
}

} // namespace

void registerClasses() {
    const objc::Pool pool;
    installIndexPaths();
    registerAll<
        Color, UIFont, UIImage, Layer, Screen, WindowScene, Pasteboard, NavigationItem, TextStorage,
        TextContainer, LayoutManager, TextPosition, TextRange, MenuItem, MenuController, Responder,
        Application, ViewController, View, Window, TextEffectsWindow, KeyboardView, CalloutBar,
        TextSelectionView, Label, ImageView, ScrollView, StackView, NavigationBar, Control, Button,
        ClearButton, TextField, TextView, Touch, Event, GestureRecognizer, TapGestureRecognizer,
        LongPressGestureRecognizer, PanGestureRecognizer, PinchGestureRecognizer,
        SwipeGestureRecognizer, ScrollPan, CollectionViewLayoutAttributes, CollectionViewLayout,
        CollectionViewFlowLayout, CollectionReusableView, CollectionViewCell, CollectionView,
        LayoutConstraint, LayoutGuide, LayoutAnchor, XAnchor, YAnchor, Dimension, PickerColumn,
        PickerView, TableViewCell, TableView, TableViewController, CollectionViewController>();
    // Controllers, and what they are made of.
    registerAll<SymbolConfiguration, BarButtonItem, PresentationController,
                PopoverPresentationController, AlertAction, NavigationController, AlertController,
                TransitionView, LayoutContainer, DimmingView, PopoverView, AlertView, Toolbar,
                AlertRow, ActivityViewController, SafariViewController>();
    installStringDrawing();
    registerSpeechClasses();
    registerWebClasses();
    installGeometryValues();
}

void startApplication(ScreenSize size) {
    const objc::Pool pool;
    const CGSize points{size.width, size.height};
    ScreenGeometry::current() = {points, size.scale, safeAreaOf(points)};
    ui::Application::shared();
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
