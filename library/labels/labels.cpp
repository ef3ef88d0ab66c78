// The classes and categories of the room of labels.
#include "library/labels/labels.hpp"

#include "library/labels/color_from_string.hpp"
#include "library/labels/rule_editor/colour_chooser.hpp"
#include "library/labels/rule_editor/editor.hpp"
#include "library/labels/rule_editor/host_keeper.hpp"
#include "library/labels/yy_label.hpp"

#include <array>

namespace wentra::labels {

Face face() {
    static constexpr std::array<Face::Declaration, 3> classes{
        &registerYYLabel, &registerCustomAlertController, &registerHostKeeper};
    static constexpr std::array<Table, 10> categories{
        &colourCategory, &longPressCopyCategory, &editorProperties, &editorOpening,
        &editorSaving,   &editorCommands,        &editorGestures,   &fontPicking,
        &keywordSearch,  &colourChoosing};
    return {classes, categories};
}

} // namespace wentra::labels
