// The table of the buttons, and how they are made.
#include "library/labels/rule_editor/editor_buttons.hpp"

#include "bindings/uikit/layout_item.hpp"
#include "bindings/uikit/window.hpp"
#include "library/common/buttons.hpp"
#include "library/common/light_background.hpp"

#include <array>
#include <string_view>

namespace wentra::labels {
namespace {

enum class Column { left, right };

struct ButtonRow {
    std::u16string_view title;
    Column column;
    double top; ///< below the text view's top, in points
    SEL (*action)();
};

constexpr std::array buttonRows{
    ButtonRow{u"上移", Column::right, 13, &objc::selector<"moveCursorUp:">},
    ButtonRow{u"下移", Column::right, 54, &objc::selector<"moveCursorDown:">},
    ButtonRow{u"上页", Column::right, 95, &objc::selector<"prevPage:">},
    ButtonRow{u"下页", Column::right, 136, &objc::selector<"nextPage:">},
    ButtonRow{u"透明", Column::right, 177, &objc::selector<"tmdtj:">},
    ButtonRow{u"字体", Column::right, 218, &objc::selector<"fontButtonPressed:">},
    ButtonRow{u"等于", Column::right, 259, &objc::selector<"equalButtonPressed:">},
    ButtonRow{u"搜索", Column::left, 43, &objc::selector<"searchButtonPressed:">},
    ButtonRow{u"导出", Column::left, 84, &objc::selector<"exportButtonPressed:">},
    ButtonRow{u"单删", Column::left, 125, &objc::selector<"deleteRowButtonPressed:">},
    ButtonRow{u"大小", Column::left, 166, &objc::selector<"dxButtonPressed:">},
    ButtonRow{u"颜色", Column::left, 207, nullptr}, // has never done anything
    ButtonRow{u"横向", Column::left, 248, &objc::selector<"hxButtonPressed:">},
    ButtonRow{u"纵向", Column::left, 289, &objc::selector<"zxButtonPressed:">},
    ButtonRow{u"高度", Column::left, 330, &objc::selector<"gdButtonPressed:">},
    ButtonRow{u"宽度", Column::left, 371, &objc::selector<"kdButtonPressed:">},
};

constexpr UIEdgeInsets equalInsets(double points) { return {points, points, points, points}; }

ui::Button addButton(ui::View host, ui::Window window, std::u16string_view title, SEL action,
                     double padding, double textSize = 0) {
    const ButtonLook look{
        .title = ns::String::from(title), .textSize = textSize, .cornerRadius = 5};
    const auto button = makeButton(look, host, action);
    button.setContentEdgeInsets(equalInsets(padding));
    setLightBackground(button, ui::Color::withWhite(1, 0.9));
    button.setClipsToBounds(true);
    window.addSubview(button);
    return button;
}

void addToColumn(ui::View host, ui::TextView editor, const ButtonRow& row) {
    constexpr double outside = 46; // how far a column's outer edge lies beside the text view
    constexpr double padding = 6;
    const SEL action = row.action == nullptr ? nullptr : row.action();
    const auto button =
        ui::constrained(addButton(host, editor.window(), row.title, action, padding));
    const ui::LayoutItem text(editor);
    if (row.column == Column::right) {
        button.trailing().equalTo(text.trailing(), outside).activate();
    } else {
        button.leading().equalTo(text.leading(), -outside).activate();
    }
    button.top().equalTo(text.top(), row.top).activate();
}

void addConfirmation(ui::View host, ui::TextView editor) {
    constexpr CGSize size{50, 30};
    constexpr double below = 28;
    constexpr double padding = 4;
    constexpr double textSize = 19;
    const ui::Window window = editor.window();
    const ui::Button button =
        addButton(host, window, u"确定", objc::selector<"savePressed:">(), padding, textSize);
    const auto place = ui::constrained(button);
    place.centerX().equalTo(ui::LayoutItem(window).centerX()).activate();
    place.top().equalTo(ui::LayoutItem(editor).bottom(), below).activate();
    place.width().equalTo(size.width).activate();
    place.height().equalTo(size.height).activate();
}

} // namespace

void addEditorButtons(ui::View host, ui::TextView editor) {
    addConfirmation(host, editor);
    for (const ButtonRow& row : buttonRows) {
        addToColumn(host, editor, row);
    }
}

} // namespace wentra::labels
