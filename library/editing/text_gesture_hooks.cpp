// Gestures that translate labels of some applications, and one that shows what a text view holds.
#include "library/editing/text_gesture_hooks.hpp"

#include "bindings/applications/yy_label.hpp"
#include "bindings/dispatch/dispatch.hpp"
#include "bindings/foundation/bundle.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/table_view_label.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/analysis/movable_alert_view.hpp"
#include "library/common/gestures.hpp"
#include "library/common/screens.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace wentra::editing {
namespace {

using namespace ns::literals;
using objc::Next;
using objc::Object;
using preferences::keys;
using preferences::Preferences;

constexpr std::string_view discord = "com.hammerandchisel.discord";
constexpr std::array<std::string_view, 2> videoApplications{"com.zhiliaoapp.musically",
                                                            "com.ss.iphone.ugc.Aweme"};
constexpr std::string_view settings = "com.apple.Preferences";

std::string applicationIdentifier() { return ns::Bundle::mainBundle().bundleIdentifier().utf8(); }

bool isVideoApplication() {
    return std::ranges::count(videoApplications, applicationIdentifier()) != 0;
}

bool translatesDiscord(Object) { return Preferences::read().on(keys.translateInDiscord); }
bool translatesTikTok(Object) { return Preferences::read().on(keys.translateInTikTok); }
bool translatesSettings(Object) { return Preferences::read().on(keys.translateInSettings); }
bool filtersCrashLogs(Object) { return Preferences::read().on(keys.filterCrashLogs); }

/// Whether labels of Settings are translated here and now.
bool isInTranslatedSettings(Object label) {
    return applicationIdentifier() == settings &&
           label.send<"issettingsTranslationEnabled", bool>();
}

Object withYYLabelGestures(Next<Object(CGRect)> next, apps::YYLabel, CGRect frame) {
    constexpr double seconds = 0.2;
    constexpr unsigned long fingers = 2;
    const Object label = next(frame);
    const auto view = label.as<ui::View>();
    if (view && applicationIdentifier() == discord &&
        view.send<"isDiscordTranslationEnabled", bool>()) {
        addTap(view, view, objc::selector<"handleTap:">());
        view.setUserInteractionEnabled(true);
    }
    if (view && isVideoApplication() && view.send<"isTikTokTranslationEnabled", bool>()) {
        addPress(view, view, objc::selector<"handleLongPress:">(), seconds, fingers);
        view.setUserInteractionEnabled(true);
    }
    return label;
}

Object withSettingsGestures(Next<Object(CGRect)> next, ui::TableViewLabel, CGRect frame) {
    const Object label = next(frame);
    if (const auto view = label.as<ui::View>(); view && isInTranslatedSettings(view)) {
        addTap(view, view, objc::selector<"handleszTap:">());
        view.setUserInteractionEnabled(true);
    }
    return label;
}

Object withTextGestures(Next<Object(CGRect)> next, ui::TextView, CGRect frame) {
    constexpr double seconds = 0.1;
    constexpr unsigned long fingers = 2;
    const Object text = next(frame);
    if (const auto view = text.as<ui::View>(); view && view.send<"issettingslogEnabled", bool>()) {
        addPress(view, view, objc::selector<"logEnabledLongPress:">(), seconds, fingers);
        view.setUserInteractionEnabled(true);
    }
    return text;
}

/// Once the gesture has been dealt with.
void translateLater(ns::String text) {
    dispatch::async(dispatch::mainQueue(), [text = objc::Copied(text)] {
        toolbox::FloatingViewController::make().translateText(text);
    });
}

void translate(ui::Label label, ui::GestureRecognizer gesture) {
    if (gesture.state() == ui::GestureState::ended) {
        translateLater(label.text());
    }
}

void translateSetting(ui::Label label, ui::GestureRecognizer gesture) {
    if (gesture.state() == ui::GestureState::ended && isInTranslatedSettings(label)) {
        translateLater(label.text());
    }
}

void showText(ui::TextView view, ui::GestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    dispatch::async(
        dispatch::mainQueue(), [view = objc::Strong(view), text = objc::Copied(view.text())] {
            view.send<"showAlertWithTitle:message:">(u"🔝内容过滤QF"_ns, ns::String(text));
        });
}

void copyToPasteboard(Object, ns::String text) {
    ui::Pasteboard::generalPasteboard().setString(text);
}

/// What is presented last above the key window's root controller, or nil.
ui::ViewController topControllerOfKeyWindow() {
    ui::ViewController top = keyWindow().rootViewController();
    while (const ui::ViewController presented = top.presentedViewController()) {
        top = presented;
    }
    return top;
}

void showDialog(Object, ns::String title, ns::String message) {
    const ui::View screen = topControllerOfKeyWindow().view();
    if (!screen) {
        return;
    }
    const auto dialog = analysis::MovableAlertView::with(title, message);
    const auto [scrolled, size] = screen.bounds();
    dialog.setCenter({scrolled.x + size.width / 2, scrolled.y + size.height / 2});
    screen.addSubview(dialog);
}

} // namespace

std::span<const objc::Change> textGestureHooks() {
    static constexpr std::array changes{
        objc::hook<"initWithFrame:", &withYYLabelGestures>(),
        objc::addition<"YYLabel", "isDiscordTranslationEnabled", &translatesDiscord>(),
        objc::addition<"YYLabel", "handleTap:", &translate>(),
        objc::addition<"YYLabel", "isTikTokTranslationEnabled", &translatesTikTok>(),
        objc::addition<"YYLabel", "handleLongPress:", &translate>(),

        objc::hook<"initWithFrame:", &withSettingsGestures>(),
        objc::addition<"UITableViewLabel", "issettingsTranslationEnabled", &translatesSettings>(),
        objc::addition<"UITableViewLabel", "handleszTap:", &translateSetting>(),

        objc::hook<"initWithFrame:", &withTextGestures>(),
        objc::addition<"logEnabledLongPress:", &showText>(),
        objc::addition<"UITextView", "copyTextToPasteboard:", &copyToPasteboard>(),
        objc::addition<"UITextView", "issettingslogEnabled", &filtersCrashLogs>(),
        objc::addition<"UITextView", "showAlertWithTitle:message:", &showDialog>(),
    };
    return changes;
}

} // namespace wentra::editing
