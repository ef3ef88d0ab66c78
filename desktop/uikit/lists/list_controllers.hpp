// UITableViewController and UICollectionViewController: controllers of one list.
#pragma once

#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/collection_view_controller.hpp"
#include "bindings/uikit/table_view.hpp"
#include "bindings/uikit/table_view_controller.hpp"
#include "bindings/uikit/view_controller.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/lists/table_view.hpp"

namespace desktop {

/// Its view is the table, whose data source and delegate it is.
class TableViewController : public PlatformClass<TableViewController, ui::TableViewController> {
public:
    static constexpr auto methods() {
        using Self = TableViewController;
        return std::array{
            objc::method<"initWithStyle:", &Self::initWithStyle>(),
            objc::method<"loadView", &Self::loadView>(),
            objc::property<"tableView", &Self::tableView, &Self::setTableView>(),
            objc::method<"tableView:numberOfRowsInSection:", &Self::numberOfRows>(),
            objc::method<"setEditing:animated:", &Self::setEditing>(),
        };
    }

private:
    ui::TableViewController initWithStyle(long style);
    void loadView();
    [[nodiscard]] ui::View tableView() const { return self().view(); }
    /// None, until a subclass says otherwise.
    [[nodiscard]] long numberOfRows(ui::TableView, long) const { return 0; }
    void setTableView(ui::TableView table) { self().send<"setView:">(table); }
    void setEditing(bool editing, bool animated);

    long style_ = 0;
};

/// The collection view lies in its view; it is its data source and delegate.
class CollectionViewController
    : public PlatformClass<CollectionViewController, ui::CollectionViewController> {
public:
    static constexpr auto methods() {
        using Self = CollectionViewController;
        return std::array{
            objc::method<"initWithCollectionViewLayout:", &Self::initWithLayout>(),
            objc::method<"loadView", &Self::loadView>(),
            objc::method<"collectionView", &Self::collectionView>(),
            objc::method<"collectionViewLayout", &Self::layout>(),
            objc::method<"collectionView:numberOfItemsInSection:", &Self::numberOfItems>(),
        };
    }

private:
    ui::CollectionViewController initWithLayout(ui::CollectionViewLayout layout);
    void loadView();
    [[nodiscard]] ui::CollectionView collectionView() const;
    [[nodiscard]] ui::CollectionViewLayout layout() const { return layout_; }
    /// A controller that has nothing to say about items has none.
    [[nodiscard]] long numberOfItems(ui::CollectionView, long) const { return 0; }

    objc::Strong<ui::CollectionViewLayout> layout_;
    objc::Strong<ui::CollectionView> collection_;
};

} // namespace desktop
