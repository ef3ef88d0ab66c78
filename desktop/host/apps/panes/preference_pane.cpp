// The table of a pane: its rows' cells, and what people do with them.
#include "desktop/host/apps/panes/preference_pane.hpp"

#include "desktop/host/apps/panes/pane_values.hpp"
#include "desktop/host/apps/screen_parts.hpp"
#include "desktop/uikit/lists/table_view.hpp"

#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/navigation_item.hpp"
#include "bindings/uikit/slider.hpp"
#include "bindings/uikit/switch.hpp"
#include "bindings/uikit/table_view_controller.hpp"
#include "bindings/uikit/text_field.hpp"

#include <array>

namespace desktop::host {
namespace {

using namespace ns::literals;

/// A control's tag tells its row: a field that scrolls away ends editing when it has left the
/// table.
constexpr long longestSection = 1L << 16U;

long tagOf(ItemIndex index) { return index.section * longestSection + index.item; }

/// Puts the control between the cell's margins.
void spread(ui::Control control, ui::TableViewCell cell) {
    constexpr double margin = 16;
    cell.layoutIfNeeded();
    const CGSize size = cell.contentView().bounds().size;
    control.setFrame({{margin, 0}, {size.width - 2 * margin, size.height}});
    cell.contentView().addSubview(control);
}

struct PreferencePaneKind
    : objc::Kind<PreferencePaneKind, "PreferencePaneController", ui::TableViewController> {
    using Kind::Kind;
};

class PreferencePane : public PlatformClass<PreferencePane, PreferencePaneKind> {
public:
    static constexpr auto methods() {
        using Self = PreferencePane;
        return std::array{
            objc::method<"viewDidLoad", &Self::viewDidLoad>(),
            objc::method<"viewWillDisappear:", &Self::viewWillDisappear>(),
            objc::method<"numberOfSectionsInTableView:", &Self::numberOfSections>(),
            objc::method<"tableView:numberOfRowsInSection:", &Self::numberOfRows>(),
            objc::method<"tableView:cellForRowAtIndexPath:", &Self::cellForRow>(),
            objc::method<"tableView:titleForHeaderInSection:", &Self::headerTitle>(),
            objc::method<"tableView:titleForFooterInSection:", &Self::footerTitle>(),
            objc::method<"tableView:didSelectRowAtIndexPath:", &Self::didSelect>(),
            objc::method<"switchChanged:", &Self::switchChanged>(),
            objc::method<"sliderChanged:", &Self::sliderChanged>(),
            objc::method<"fieldEnded:", &Self::fieldEnded>(),
            objc::method<"textFieldShouldReturn:", &Self::shouldReturn>(),
            objc::method<"close", &Self::close>(),
        };
    }

    static PreferencePaneKind showing(Pane pane);

private:
    void viewDidLoad();
    void viewWillDisappear(bool animated);
    [[nodiscard]] long numberOfSections(ui::TableView) const;
    [[nodiscard]] long numberOfRows(ui::TableView, long section) const;
    [[nodiscard]] ui::TableViewCell cellForRow(ui::TableView, ns::IndexPath path) const;
    [[nodiscard]] ns::String headerTitle(ui::TableView, long section) const;
    [[nodiscard]] ns::String footerTitle(ui::TableView, long section) const;
    void didSelect(ui::TableView table, ns::IndexPath path) const;
    void switchChanged(ui::Switch control) const;
    void sliderChanged(ui::Slider control) const;
    void fieldEnded(ui::TextField field) const;
    [[nodiscard]] bool shouldReturn(ui::TextField field) const;
    void close() { self().dismiss(true); }

    [[nodiscard]] const PaneSection& section(long index) const;
    [[nodiscard]] const PaneRow& row(ItemIndex index) const;
    [[nodiscard]] const PaneRow& rowWith(ui::View control) const;
    [[nodiscard]] ui::Switch switchFor(const PaneRow& row) const;
    [[nodiscard]] ui::TextField fieldFor(const PaneRow& row) const;
    [[nodiscard]] ui::Slider sliderFor(const PaneRow& row) const;
    [[nodiscard]] ui::Control controlFor(const PaneRow& row) const;
    void keep(const PaneRow& row, objc::Object value) const;

    Pane pane_;
};

PreferencePaneKind PreferencePane::showing(Pane pane) {
    const auto controller = PreferencePaneKind::make<"initWithStyle:">(ui::TableViewStyle::grouped);
    of(controller).pane_ = std::move(pane);
    return controller;
}

void PreferencePane::viewDidLoad() {
    super<"viewDidLoad">();
    self().setTitle(pane_.title);
}

/// What is being typed is stored while there is somebody to do so.
void PreferencePane::viewWillDisappear(bool animated) {
    super<"viewWillDisappear:">(animated);
    self().view().send<"endEditing:", bool>(true);
}

const PaneSection& PreferencePane::section(long index) const {
    return pane_.sections.at(static_cast<std::size_t>(index));
}

const PaneRow& PreferencePane::row(ItemIndex index) const {
    return section(index.section).rows.at(static_cast<std::size_t>(index.item));
}

const PaneRow& PreferencePane::rowWith(ui::View control) const {
    return row({control.tag() / longestSection, control.tag() % longestSection});
}

long PreferencePane::numberOfSections(ui::TableView) const {
    return static_cast<long>(pane_.sections.size());
}

long PreferencePane::numberOfRows(ui::TableView, long index) const {
    return static_cast<long>(section(index).rows.size());
}

ns::String PreferencePane::headerTitle(ui::TableView, long index) const {
    return section(index).title;
}

ns::String PreferencePane::footerTitle(ui::TableView, long index) const {
    return section(index).footer;
}

ui::Switch PreferencePane::switchFor(const PaneRow& row) const {
    const auto control = ui::Switch::withFrame({});
    control.setOn(isOn(row));
    control.addTarget(self(), objc::selector<"switchChanged:">(), ui::ControlEvents::valueChanged);
    return control;
}

ui::TextField PreferencePane::fieldFor(const PaneRow& row) const {
    const auto field = ui::TextField::withFrame({{}, {170, 34}});
    field.setText(shownText(row));
    field.setPlaceholder(row.text(u"placeholder"_ns));
    field.send<"setTextColor:">(ui::Color::secondaryLabel());
    field.send<"setTextAlignment:">(ui::TextAlignment::right);
    const ns::String keyboard = row.text(u"keyboard"_ns);
    if (keyboard && keyboard.isEqual(u"numbers"_ns)) {
        field.setKeyboardType(ui::KeyboardType::numbersAndPunctuation);
    }
    field.setDelegate(self());
    field.addTarget(self(), objc::selector<"fieldEnded:">(), ui::ControlEvents::editingDidEnd);
    return field;
}

ui::Slider PreferencePane::sliderFor(const PaneRow& row) const {
    const auto slider = ui::Slider::withFrame({});
    slider.setMinimumValue(row.number(u"min"_ns).floatValue());
    slider.setMaximumValue(row.number(u"max"_ns).floatValue());
    slider.setValue(shownNumber(row));
    slider.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    slider.addTarget(self(), objc::selector<"sliderChanged:">(), ui::ControlEvents::valueChanged);
    return slider;
}

/// What sets the row's value; nil where it has none.
ui::Control PreferencePane::controlFor(const PaneRow& row) const {
    if (row.isCell(u"PSSwitchCell"_ns)) {
        return switchFor(row);
    }
    if (row.isCell(u"PSEditTextCell"_ns)) {
        return fieldFor(row);
    }
    return row.isCell(u"PSSliderCell"_ns) ? ui::Control(sliderFor(row)) : ui::Control();
}

ui::TableViewCell PreferencePane::cellForRow(ui::TableView, ns::IndexPath path) const {
    const ItemIndex index = ItemIndex::of(path);
    const PaneRow& shown = row(index);
    const auto cell = ui::TableViewCell::withStyle(ui::TableViewCellStyle::default_, ns::String());
    cell.setBackgroundColor(cardColor());
    cell.send<"setSelectionStyle:">(0L);
    const ui::Control control = controlFor(shown);
    control.setTag(tagOf(index));
    if (shown.isCell(u"PSSliderCell"_ns)) {
        spread(control, cell);
        return cell;
    }
    cell.textLabel().setText(shown.text(u"label"_ns));
    cell.send<"setAccessoryView:">(control);
    if (shown.isCell(u"PSLinkCell"_ns)) {
        cell.send<"imageView", ui::ImageView>().setImage(rowPicture(shown, pane_.folder));
        cell.send<"setAccessoryType:">(CellAccessory::disclosure);
        cell.send<"setSelectionStyle:">(3L);
    }
    return cell;
}

void PreferencePane::didSelect(ui::TableView table, ns::IndexPath path) const {
    table.deselectRow(path, true);
    const ns::String name = row(ItemIndex::of(path)).text(u"pl_alt_plist_name"_ns);
    auto pane = name ? readPane(pane_.folder / (name.utf8() + ".plist")) : std::nullopt;
    if (pane) {
        self().navigationController().push(showing(std::move(*pane)), true);
    }
}

/// What cannot be stored is not shown.
void PreferencePane::keep(const PaneRow& row, objc::Object value) const {
    if (!store(row, value)) {
        self().tableView().reloadData();
    }
}

void PreferencePane::switchChanged(ui::Switch control) const {
    keep(rowWith(control), ns::Number::from(control.isOn()));
}

void PreferencePane::sliderChanged(ui::Slider control) const {
    keep(rowWith(control), ns::Number::from(static_cast<double>(control.value())));
}

void PreferencePane::fieldEnded(ui::TextField field) const { keep(rowWith(field), field.text()); }

bool PreferencePane::shouldReturn(ui::TextField field) const {
    field.send<"resignFirstResponder", bool>();
    return true;
}

} // namespace

void registerPreferencePane() { PreferencePane::registerClass(); }

void presentPane(const std::filesystem::path& file, ui::ViewController presenting) {
    auto pane = readPane(file);
    if (!pane) {
        return;
    }
    const auto controller = PreferencePane::showing(std::move(*pane));
    controller.navigationItem().setLeftBarButtonItem(ui::BarButtonItem::withTitle(
        u"‹ 设置"_ns, ui::BarButtonStyle::plain, controller, objc::selector<"close">()));
    const auto navigation = ui::NavigationController::withRoot(controller);
    navigation.setModalPresentationStyle(ui::ModalPresentation::fullScreen);
    presenting.present(navigation, true);
}

} // namespace desktop::host
