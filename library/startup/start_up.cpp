// The order of start-up: class-load methods first, then the initialisers.
#include "library/startup/start_up.hpp"

#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "library/blocking/request_hooks.hpp"
#include "library/clipboard/text_view_controller.hpp"
#include "library/common/draggable_view.hpp"
#include "library/editing/edit_menu_hooks.hpp"
#include "library/editing/text_gesture_hooks.hpp"
#include "library/labels/color_from_string.hpp"
#include "library/labels/label_text_hooks.hpp"
#include "library/labels/long_press_copy.hpp"
#include "library/labels/rule_editor/colour_chooser.hpp"
#include "library/labels/rule_editor/editor.hpp"
#include "library/labels/rule_editor_hooks.hpp"
#include "library/labels/yy_label.hpp"
#include "library/scratchpad/scratch_pad_hook.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/screens_to_come.hpp"
#include "library/toolbox/translation/bilingual_view.hpp"
#include "library/toolbox/translation/translation.hpp"
#include "library/toolbox/view_model.hpp"

#include <array>
#include <mutex>

namespace wentra::startup {
namespace {

/// Installs the rows of a room's table, in order.
template <auto Table>
void install() {
    for (const objc::Change& change : Table()) {
        objc::install(change);
    }
}

/// What the runtime would do for a compiled image before any load method runs: our own classes, and
/// the methods that our categories add to the platform's.
void declareClasses() {
    labels::registerYYLabel();
    registerTrashButton();
    labels::registerCustomAlertController();
    toolbox::registerFloatingViewController();
    toolbox::registerBilingualView();
    clipboard::registerTextViewController();
    toolbox::registerViewModel();
    install<&labels::colourCategory>();
    install<&toolbox::translationCategory>();
    install<&draggableCategory>();
    install<&labels::longPressCopyCategory>();
    install<&labels::editorProperties>();
    install<&labels::editorOpening>();
    install<&labels::editorSaving>();
    install<&labels::editorCommands>();
    install<&labels::editorGestures>();
    install<&labels::fontPicking>();
    install<&labels::keywordSearch>();
    install<&labels::colourChoosing>();
    install<&editing::menuItemCategory>();
    install<&editing::speechCategories>();
    install<&toolbox::screensToCome>(); // last: they fill what is still open
}

constexpr std::array table{
    Step{"classes and categories", &declareClasses},

    Step{"UILabel(LongPressCopy) load", &install<&labels::longPressCopyLoad>},
    Step{"UILabel(hook) load", &install<&labels::labelTextLoad>},
    Step{"YYLabel load", &install<&labels::yyLabelTextLoad>},

    Step{"1 scratch pad in Settings", &install<&scratchpad::scratchPadHooks>},
    Step{"2 preference path and floating toolbox",
         [] {
             blocking::resolvePreferencePath();
             toolbox::scheduleViewModel();
         }},
    Step{"3 request blocking", &install<&blocking::requestHooks>},
    Step{"4 rule editor's containers and label text",
         [] {
             install<&labels::containerHooks>();
             install<&labels::labelTextHooks>();
         }},
    Step{"5 rule editor in the camera application", &install<&labels::cameraHooks>},
    Step{"6 observer of the edit menu", &editing::observeMenu},
    Step{"7 edit menu and text editing", &install<&editing::editMenuHooks>},
    Step{"8 gestures on labels and text views", &install<&editing::textGestureHooks>},
};

} // namespace

std::span<const Step> steps() { return table; }

void startUp() noexcept {
    static std::once_flag once;
    std::call_once(once, [] {
        const objc::Pool pool;
        for (const Step& step : table) {
            objc::contained(step.name.data(), step.run);
        }
    });
}

} // namespace wentra::startup
