// The long press, and the copying that it does.
#include "library/labels/long_press_copy.hpp"

#include "bindings/foundation/bundle.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/navigation_bar.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/text_field.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/common/gestures.hpp"
#include "library/common/haptic.hpp"
#include "library/labels/copy_rules.hpp"
#include "library/preferences/preferences.hpp"

#include <array>
#include <concepts>

namespace wentra::labels {
namespace {

constexpr double pressDuration = 0.3;

/// Whether any of the views around this one, from its superview on, is of that sort.
bool hasAncestor(ui::View view, std::predicate<ui::View> auto isOfThatSort) {
    for (ui::View around = view.superview(); around; around = around.superview()) {
        if (isOfThatSort(around)) {
            return true;
        }
    }
    return false;
}

std::u16string className(ui::View view) {
    return ns::String::fromUtf8(class_getName(view.class_())).utf16();
}

bool isNeverCopiedLabel(ui::View view) {
    return isNeverCopied(view.as<ui::Label>().text().utf16());
}

/// What a long press on the view copies; nil for views without text.
ns::String copiedText(ui::View view) {
    if (const auto label = view.as<ui::Label>(); label) {
        return label.text();
    }
    if (const auto button = view.as<ui::Button>(); button) {
        return button.titleLabel().text();
    }
    if (const auto field = view.as<ui::TextField>(); field) {
        return field.text();
    }
    return view.as<ui::TextView>().text();
}

void setUp(ui::View view) {
    using preferences::keys;
    const auto preferences = preferences::Preferences::read();
    const CopySwitches switches{preferences.on(keys.copyOnLongPress),
                                preferences.on(keys.suppressCopyInMessengers)};
    if (!copiesIn(ns::Bundle::mainBundle().bundleIdentifier().utf8(), switches)) {
        return;
    }
    const auto users = splitClassNames(preferences.text(keys.suppressedViewClasses));
    const auto excludes = [&users](ui::View around) {
        return around.as<ui::Control>() || around.as<ui::NavigationBar>() ||
               excludesCopying(className(around), users);
    };
    if (isNeverCopiedLabel(view) || hasAncestor(view, excludes)) {
        return;
    }
    view.setUserInteractionEnabled(true);
    addPress(view, view, objc::selector<"longPress:">(), pressDuration);
}

void pressed(ui::View view, ui::GestureRecognizer press) {
    const auto excludes = [](ui::View around) {
        return around.as<ui::Button>() || excludesPressing(className(around));
    };
    if (press.state() != ui::GestureState::began || hasAncestor(view, excludes) ||
        isNeverCopiedLabel(view)) {
        return;
    }
    if (const ns::String text = copiedText(view); text) {
        ui::Pasteboard::generalPasteboard().setString(text);
        doubleHapticTap();
    }
}

void swizzle(objc::Object cls, SEL first, SEL second) {
    objc::swizzle(reinterpret_cast<Class>(cls.raw()), first, second);
}

void movedToSuperview(objc::Next<void()> next, ui::Label label) {
    next();
    label.send<"setupLongPressCopy">();
}

} // namespace

std::span<const objc::Change> longPressCopyCategory() {
    static constexpr std::array changes{
        objc::addition<"setupLongPressCopy", &setUp>(),
        objc::addition<"longPress:", &pressed>(),
        objc::classAddition<"UILabel", "swizzleInstanceMethod:withMethod:", &swizzle>(),
    };
    return changes;
}

std::span<const objc::Change> longPressCopyLoad() {
    static constexpr std::array changes{
        objc::exchange<"didMoveToSuperview", "swizzled_didMoveToSuperview", &movedToSuperview>(),
    };
    return changes;
}

} // namespace wentra::labels
