// The list of fonts: what is chosen is inserted half a second later.
#include "library/labels/rule_editor/editor.hpp"

#include "bindings/uikit/layout_item.hpp"

#include <array>

namespace wentra::labels {
namespace {

constexpr double settlingSeconds = 0.5;

void show(ui::View host, objc::Object) { fontPickerView(host).setHidden(false); }

long components(ui::View, ui::PickerView) { return 1; }

long rows(ui::View host, ui::PickerView, long) {
    return static_cast<long>(fontNames(host).count());
}

ns::String nameAt(ui::View host, long row) {
    const ns::Array names = fontNames(host);
    const auto index = static_cast<unsigned long>(row);
    return index < names.count() ? names.at(index).as<ns::String>() : nullptr;
}

ns::String title(ui::View host, ui::PickerView, long row, long) { return nameAt(host, row); }

void selected(ui::View host, ui::PickerView, long row, long) {
    pickerTimer(host).invalidate();
    setPickerTimer(host, ns::Timer::scheduled(settlingSeconds, host,
                                              objc::selector<"updateFontWithName:">(),
                                              nameAt(host, row), false));
}

void insertName(ui::View host, ns::Timer timer) {
    fontPickerView(host).setHidden(true);
    const auto name = timer.userInfo().as<ns::String>();
    insertRule(host, RuleKind::font, name);
    setPickerTimer(host, nullptr);
}

} // namespace

void addFontPicker(ui::View host, ui::TextView editor) {
    setFontNames(host, ui::Font::familyNames());
    const auto picker = ui::PickerView::make();
    picker.setDataSource(host);
    picker.setDelegate(host);
    picker.setHidden(true);
    applyEditorLook(picker);
    editor.window().addSubview(picker);
    const ui::LayoutItem text(editor);
    const auto place = ui::constrained(picker);
    place.leading().equalTo(text.leading()).activate();
    place.trailing().equalTo(text.trailing()).activate();
    place.bottom().equalTo(text.bottom()).activate();
    setFontPickerView(host, picker);
}

std::span<const objc::Change> fontPicking() {
    static constexpr std::array changes{
        objc::addition<"fontButtonPressed:", &show>(),
        objc::addition<"numberOfComponentsInPickerView:", &components>(),
        objc::addition<"pickerView:numberOfRowsInComponent:", &rows>(),
        objc::addition<"pickerView:titleForRow:forComponent:", &title>(),
        objc::addition<"pickerView:didSelectRow:inComponent:", &selected>(),
        objc::addition<"updateFontWithName:", &insertName>(),
    };
    return changes;
}

} // namespace wentra::labels
