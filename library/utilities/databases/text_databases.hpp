// The tools that read and write the phone's own databases.
#pragma once

#include "bindings/objc/part.hpp"
#include "library/utilities/tool_screens.hpp"

namespace wentra::utilities {

/// The browser's bookmarks and the keyboard's text replacements, as files of text. Each tool opens
/// its database, works through it, and closes it; what goes wrong is told in an alert.
class TextDatabases : public objc::Part<UmacaTableViewController> {
public:
    TextDatabases(UmacaTableViewController whole, ToolScreens& screens)
        : Part(whole), screens_(screens) {}
    static TextDatabases& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"exportSafariBookmarks", &TextDatabases::exportBookmarks>(),
            objc::method<"exportKeyboardReplacements", &TextDatabases::exportReplacements>(),
            objc::method<"importKeyboardReplacements", &TextDatabases::importReplacements>(),
        };
    }

    void exportBookmarks();
    void exportReplacements();
    void importReplacements();

private:
    ToolScreens& screens_;
};

} // namespace wentra::utilities
