// The copy list, and pasting it.
#pragma once

#include "library/files/browser/panes.hpp"
#include "library/files/operations/item_changes.hpp"

namespace wentra::files {

class Pasting : public objc::Part<UmaCollectionViewController> {
public:
    Pasting(UmaCollectionViewController whole, Panes& panes) : Part(whole), panes_(panes) {}
    static Pasting& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"copiedPaths", &Pasting::copiedPaths_>(),
            objc::method<"copyFilesAtPath:tableView:", &Pasting::add>(),
            objc::method<"selectAndCopyAllItemsInTableView:", &Pasting::addAll>(),
            objc::method<"pasteItemsToTableView:", &Pasting::paste>(),
            objc::method<"copyItemAtPath:toPath:", &Pasting::replace>(),
            objc::method<"renameAndPasteItemAtPath:toPath:", &Pasting::copyNumbered>(),
        };
    }

    void begin() { copiedPaths_ = ns::MutableArray::make(); }
    void addAll(ui::TableView table);
    /// The list, then what the pasteboard names.
    void pasteAll(ui::TableView table);

private:
    void add(ns::IndexPath row, ui::TableView table);
    void paste(ui::TableView table);
    void pastePasteboard(ui::TableView table);
    void askAbout(const std::string& source, const std::string& destination, ui::TableView table);
    void pasteNumbered(ui::TableView table);
    void replace(ns::String source, ns::String destination);
    void replaced(ns::String source, Failure failure);
    void copyNumbered(ns::String source, ns::String destination);

    Panes& panes_;
    objc::Strong<ns::MutableArray> copiedPaths_;
};

} // namespace wentra::files
