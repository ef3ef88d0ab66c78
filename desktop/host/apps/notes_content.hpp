// The texts on the notes application's screen.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace desktop::host {

/// All texts are UTF-8.
struct NotesContent {
    struct Card {
        std::string title;
        std::vector<std::string> lines;
    };
    struct PlacedLabel {
        std::string text;
        /// x, y, width and height, in points of the board that the labels lie on.
        std::array<double, 4> frame{};
        double size = 17;
    };

    std::string title;
    std::vector<Card> cards;
    std::vector<std::string> list;
    std::vector<PlacedLabel> labels;

    /// The texts that the application shows by itself.
    static NotesContent standard();
    /// Reads a JSON file. Throws UsageError, which names the file.
    static NotesContent fromFile(const std::filesystem::path& file);
};

} // namespace desktop::host
