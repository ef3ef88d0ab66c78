// The parts of an editor as properties of its host.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/foundation/timer.hpp"
#include "bindings/objc/associated.hpp"
#include "bindings/uikit/picker_view.hpp"

#include <array>

namespace wentra::labels {
namespace {

/// The getter and the setter of a property that the host retains.
template <objc::Literal Name, class Kind>
struct HostProperty {
    static Kind get(ui::View host) { return objc::associated<Name, Kind>(host); }
    static void set(ui::View host, Kind part) {
        objc::associate<Name>(host, part, objc::Association::retainNonatomic);
    }
};

using Input = HostProperty<"inputTextView", ui::TextView>;
using Picker = HostProperty<"fontPickerView", ui::PickerView>;
using FontNames = HostProperty<"fontNames", ns::Array>;
using PickerTimer = HostProperty<"timer", ns::Timer>;

} // namespace

ui::TextView inputTextView(ui::View host) { return Input::get(host); }
ui::PickerView fontPickerView(ui::View host) { return Picker::get(host); }
ns::Array fontNames(ui::View host) { return FontNames::get(host); }
ns::Timer pickerTimer(ui::View host) { return PickerTimer::get(host); }

void setInputTextView(ui::View host, ui::TextView editor) { Input::set(host, editor); }
void setFontPickerView(ui::View host, ui::PickerView picker) { Picker::set(host, picker); }
void setFontNames(ui::View host, ns::Array names) { FontNames::set(host, names); }
void setPickerTimer(ui::View host, ns::Timer timer) { PickerTimer::set(host, timer); }

std::span<const objc::Change> editorProperties() {
    static constexpr std::array changes{
        objc::addition<"inputTextView", &Input::get>(),
        objc::addition<"setInputTextView:", &Input::set>(),
        objc::addition<"fontPickerView", &Picker::get>(),
        objc::addition<"setFontPickerView:", &Picker::set>(),
        objc::addition<"fontNames", &FontNames::get>(),
        objc::addition<"setFontNames:", &FontNames::set>(),
        objc::addition<"timer", &PickerTimer::get>(),
        objc::addition<"setTimer:", &PickerTimer::set>(),
    };
    return changes;
}

} // namespace wentra::labels
