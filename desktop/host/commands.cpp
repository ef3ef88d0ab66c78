// The table of commands, and those that need no file of their own.
#include "desktop/host/commands.hpp"

#include "desktop/host/arguments.hpp"
#include "desktop/uikit/uikit.hpp"

#include <algorithm>
#include <array>

namespace desktop::host {
namespace {

Json screenshot(Session&, const Json& request) {
    uikit::renderScreen(stringArgument(request, "file"));
    return nullptr;
}

Json quit(Session& session, const Json&) {
    session.quits = true;
    return nullptr;
}

struct CommandRow {
    std::string_view name;
    Command command;
};

constexpr auto commandTable = std::to_array<CommandRow>({
    {"send", &send},
    {"make", &make},
    {"tree", &tree},
    {"find", &find},
    {"at", &at},
    {"tap", &tap},
    {"press", &press},
    {"slide", &slide},
    {"pinch", &pinch},
    {"touch", &touch},
    {"wheel", &wheel},
    {"swipe", &swipe},
    {"type", &type},
    {"key", &key},
    {"keyboard", &keyboard},
    {"menu", &menu},
    {"context", &context},
    {"alert", &alert},
    {"mail", &mail},
    {"screens", &screens},
    {"pasteboard", &pasteboard},
    {"file", &file},
    {"preferences", &preferences},
    {"defaults", &defaults},
    {"documents", &documents},
    {"serve", &serve},
    {"recorder", &recorder},
    {"recognizer", &recognizer},
    {"film", &film},
    {"appearance", &appearance},
    {"rotate", &rotate},
    {"textSize", &textSize},
    {"home", &home},
    {"lock", &lock},
    {"shake", &shake},
    {"device", &device},
    {"advance", &advance},
    {"wait", &wait},
    {"events", &events},
    {"screenshot", &screenshot},
    {"quit", &quit},
});

} // namespace

Command commandNamed(std::string_view name) {
    const auto* row = std::ranges::find(commandTable, name, &CommandRow::name);
    return row == commandTable.end() ? nullptr : row->command;
}

} // namespace desktop::host
