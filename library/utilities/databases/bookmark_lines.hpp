// The bookmarks' addresses as lines of a file.
#pragma once

#include <string>
#include <string_view>

namespace wentra::utilities {

/// Of the addresses in their order, every second one, beginning with the second.
class BookmarkLines {
public:
    void add(std::string_view address) {
        if (isWanted_) {
            text_.append(address).append("\n");
        }
        isWanted_ = !isWanted_;
    }
    /// A line feed behind each address.
    [[nodiscard]] const std::string& text() const { return text_; }

private:
    bool isWanted_ = false;
    std::string text_;
};

} // namespace wentra::utilities
