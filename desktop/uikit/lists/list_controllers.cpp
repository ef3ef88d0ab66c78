// Loading the lists of their controllers.
#include "desktop/uikit/lists/list_controllers.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "bindings/uikit/screen.hpp"

namespace desktop {

ui::TableViewController TableViewController::initWithStyle(long style) {
    super<"init", objc::Object>();
    style_ = style;
    return self();
}

void TableViewController::loadView() {
    const auto table =
        ui::TableView::make<"initWithFrame:style:">(ui::Screen::mainScreen().bounds(), style_);
    self().send<"setView:">(table);
    table.send<"setDelegate:">(self());
    table.send<"setDataSource:">(self());
}

void TableViewController::setEditing(bool editing, bool animated) {
    super<"setEditing:animated:">(objc::Boolean(editing), objc::Boolean(animated));
    tableView().send<"setEditing:animated:">(objc::Boolean(editing), objc::Boolean(animated));
}

ui::CollectionViewController
CollectionViewController::initWithLayout(ui::CollectionViewLayout layout) {
    super<"init", objc::Object>();
    layout_ = layout;
    return self();
}

void CollectionViewController::loadView() {
    super<"loadView">();
    const auto page = objc::sendTo<ui::View>(self().raw(), objc::selector<"view">());
    collection_ = ui::CollectionView::withFrame(
        page.bounds(), layout_ ? static_cast<ui::CollectionViewLayout>(layout_)
                               : ui::CollectionViewFlowLayout::make());
    collection_.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                                    ui::ViewAutoresizing::flexibleHeight);
    page.addSubview(collection_);
    collection_.setDelegate(self());
    collection_.setDataSource(self());
}

ui::CollectionView CollectionViewController::collectionView() const {
    static_cast<void>(self().view()); // loads it
    return collection_;
}

} // namespace desktop
