// What the browser's screen is made of: bar, toolbar and two tables.
#pragma once

#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/toolbar.hpp"
#include "library/files/browser/panes.hpp"

namespace wentra::files {

class Screen : public objc::Part<UmaCollectionViewController> {
public:
    Screen(UmaCollectionViewController whole, Panes& panes) : Part(whole), panes_(panes) {}
    static Screen& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"titleLabel", &Screen::titleLabel_>(),
            objc::method<"barButtonItemWithTitle:action:", &Screen::barItem>(),
            objc::method<"closeButtonTapped", &Screen::close>(),
            objc::method<"favoriteFileButtonTapped", &Screen::nothing>(),
            objc::method<"switchWindowButtonTapped", &Screen::nothing>(),
        };
    }

    void build();

private:
    void addTitle();
    void addFoot(ui::Toolbar toolbar) const;
    [[nodiscard]] ui::Toolbar addToolbar() const;
    [[nodiscard]] ns::Array toolbarItems() const;
    [[nodiscard]] ui::BarButtonItem barItem(ns::String title, SEL action) const;
    void addTables(ui::Toolbar toolbar);
    [[nodiscard]] ui::TableView addTable(ui::View container) const;
    void close() const;
    void nothing() {}

    Panes& panes_;
    objc::Strong<ui::Label> titleLabel_;
};

} // namespace wentra::files
