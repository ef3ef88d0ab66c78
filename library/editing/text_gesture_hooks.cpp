// Creation of labels and text views. The gestures are not there yet: creation passes through, and
// the methods that answer a gesture do nothing; the switches are read as they will be.
#include "library/editing/text_gesture_hooks.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/view.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"

#include <array>

namespace wentra::editing {
namespace {

using objc::Next;
using objc::Object;
using preferences::keys;
using preferences::Preferences;

Object withFrame(Next<Object(CGRect)> next, Object, CGRect frame) { return next(frame); }

bool translatesDiscord(Object) { return Preferences::read().on(keys.translateInDiscord); }
bool translatesTikTok(Object) { return Preferences::read().on(keys.translateInTikTok); }
bool translatesSettings(Object) { return Preferences::read().on(keys.translateInSettings); }
bool filtersCrashLogs(Object) { return Preferences::read().on(keys.filterCrashLogs); }

void gesture(Object, Object) {}

void copyToPasteboard(Object, ns::String text) {
    ui::Pasteboard::generalPasteboard().setString(text);
}

void showAlert(Object, ns::String, ns::String) {}

} // namespace

std::span<const objc::Change> textGestureHooks() {
    static constexpr std::array changes{
        objc::hook<"YYLabel", "initWithFrame:", &withFrame>(),
        objc::addition<"YYLabel", "isDiscordTranslationEnabled", &translatesDiscord>(),
        objc::addition<"YYLabel", "handleTap:", &gesture>(),
        objc::addition<"YYLabel", "isTikTokTranslationEnabled", &translatesTikTok>(),
        objc::addition<"YYLabel", "handleLongPress:", &gesture>(),

        objc::hook<"UITableViewLabel", "initWithFrame:", &withFrame>(),
        objc::addition<"UITableViewLabel", "issettingsTranslationEnabled", &translatesSettings>(),
        objc::addition<"UITableViewLabel", "handleszTap:", &gesture>(),

        objc::hook<"UITextView", "initWithFrame:", &withFrame>(),
        objc::addition<"UITextView", "logEnabledLongPress:", &gesture>(),
        objc::addition<"UITextView", "copyTextToPasteboard:", &copyToPasteboard>(),
        objc::addition<"UITextView", "issettingslogEnabled", &filtersCrashLogs>(),
        objc::addition<"UITextView", "showAlertWithTitle:message:", &showAlert>(),
    };
    return changes;
}

} // namespace wentra::editing
