// Finding files of equal size below a pane's folder, and cleaning up.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "library/files/browser/panes.hpp"
#include "library/files/duplicates.hpp"

namespace wentra::files {

/// Groups are arrays of dictionaries with a "path" and a "size".
class DuplicateFinder : public objc::Part<UmaCollectionViewController> {
public:
    DuplicateFinder(UmaCollectionViewController whole, Panes& panes) : Part(whole), panes_(panes) {}
    static DuplicateFinder& of(objc::Object controller);
    static constexpr auto methods() {
        using Self = DuplicateFinder;
        return std::array{
            objc::method<"scanDirectoryForDuplicateFiles:", &Self::scan>(),
            objc::method<"groupedFilesBySizeInDirectory:", &Self::grouped>(),
            objc::method<"presentDuplicatesFoundAlertWithDuplicateFileGroups:onTableView:",
                         &Self::present>(),
            objc::method<"keepLongestNameInDuplicateFileGroups:", &Self::keepLongest>(),
            objc::method<"keepShortestNameInDuplicateFileGroups:", &Self::keepShortest>(),
        };
    }

    void scan(ui::TableView table);

private:
    [[nodiscard]] ns::Dictionary grouped(ns::String folder) const;
    void found(const std::vector<SizeGroup>& groups, ui::TableView table);
    void present(ns::Array groups, ui::TableView table);
    void keepLongest(ns::Array groups) { clean(groups, Keeps::longestName); }
    void keepShortest(ns::Array groups) { clean(groups, Keeps::shortestName); }
    void clean(ns::Array groups, Keeps keeps);
    void removeAllBut(const std::string& keeper, const std::vector<std::string>& paths);

    Panes& panes_;
};

} // namespace wentra::files
