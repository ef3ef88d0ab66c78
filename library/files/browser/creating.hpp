// Making files and folders.
#pragma once

#include "library/files/browser/panes.hpp"

namespace wentra::files {

class Creating : public objc::Part<UmaCollectionViewController> {
public:
    Creating(UmaCollectionViewController whole, Panes& panes) : Part(whole), panes_(panes) {}
    static Creating& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"createNewFileOrFolderWithNamePrompt:forTableView:", &Creating::ask>(),
            objc::method<"createItemAtDirectory:withName:isFile:", &Creating::create>(),
            objc::method<"createNewFileOrFolder", &Creating::askAnywhere>(),
        };
    }

    void ask(bool isFile, ui::TableView table);

private:
    enum class Kind { file, folder };
    void create(ns::String folder, ns::String name, bool isFile) const;
    void askAnywhere();
    /// Beneath the row that was tapped last, which is no folder of a pane.
    void createAnywhere(const std::string& name, Kind kind);

    Panes& panes_;
};

} // namespace wentra::files
