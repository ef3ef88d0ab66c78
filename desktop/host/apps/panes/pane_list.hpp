// Preference panes as the property lists have them that packages bring.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/uikit/image.hpp"

#include <filesystem>
#include <optional>
#include <vector>

namespace desktop::host {

/// One row.
class PaneRow {
public:
    explicit PaneRow(ns::Dictionary entry) : entry_(entry) {}

    /// Nil when the row has no such text.
    [[nodiscard]] ns::String text(ns::String name) const {
        return entry_.get(name).as<ns::String>();
    }
    /// Nil when the row has no such number.
    [[nodiscard]] ns::Number number(ns::String name) const {
        return entry_.get(name).as<ns::Number>();
    }
    /// Whether the row is made of such a cell: "PSSwitchCell", for instance.
    [[nodiscard]] bool isCell(ns::String cell) const;

private:
    objc::Strong<ns::Dictionary> entry_;
};

struct PaneSection {
    objc::Strong<ns::String> title;  ///< may be nil
    objc::Strong<ns::String> footer; ///< may be nil
    std::vector<PaneRow> rows;
};

struct Pane {
    objc::Strong<ns::String> title;
    std::filesystem::path folder; ///< of its pictures, and of the panes that it leads to
    std::vector<PaneSection> sections;
};

/// None where the file is no pane's property list; what is no row in it is left out.
[[nodiscard]] std::optional<Pane> readPane(const std::filesystem::path& file);

/// What leads to a pane from the first screen of the settings.
struct PaneEntry {
    PaneRow row;
    std::filesystem::path file;
};

/// Those that packages have put where a preference loader looks, by their files' names.
[[nodiscard]] std::vector<PaneEntry> paneEntries();

/// A picture beside the pane's list; nil when the row names none, or it cannot be read.
[[nodiscard]] ui::Image rowPicture(const PaneRow& row, const std::filesystem::path& folder);

} // namespace desktop::host
