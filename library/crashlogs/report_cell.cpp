// What a row shows of a file.
#include "library/crashlogs/report_cell.hpp"

#include "bindings/foundation/date_formatter.hpp"
#include "bindings/foundation/file_manager.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/uikit/text_view.hpp"

#include <array>
#include <cstdio>

namespace wentra::crashlogs {
namespace {

using namespace ns::literals;

constexpr std::u16string_view emptyText =
    u"显示为空：\n\n1、此应用权限不足,换'设置'等应用测试。\n2、没有搜索内容或没有任何内容❗️\n\n"
    u"提示：左滑删除此条记录，日志+1";

void clear(ui::TableViewCell cell) {
    for (const ui::View view : cell.contentView().subviews().copied()) {
        view.removeFromSuperview();
    }
    cell.textLabel().setText(nullptr);
}

template <class... Values>
ns::String formatted(const char* format, Values... values) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return ns::String::fromUtf8(text.data());
}

ns::String dateText(ns::Date date) {
    const auto formatter = ns::DateFormatter::make();
    formatter.setDateFormat(u"yyyy-MM-dd HH:mm:ss"_ns);
    const ns::String text = date ? formatter.string(date) : u""_ns;
    return ns::String::from(u"日期: " + text.utf16());
}

ns::String permissionText(ns::Dictionary attributes) {
    const auto bits = attributes.get(ns::file_attributes::posixPermissions()).as<ns::Number>();
    return formatted("访问权限: %llo", bits.unsignedValue());
}

ns::String sizeText(ns::Dictionary attributes) {
    constexpr double kilo = 1024;
    const auto bytes = attributes.get(ns::file_attributes::size()).as<ns::Number>();
    return formatted("文件大小: %.4f MB", static_cast<double>(bytes.unsignedValue()) / kilo / kilo);
}

void addLine(ui::TableViewCell cell, double left, ui::Color color, ns::String text) {
    constexpr double top = 52;
    constexpr double height = 20;
    constexpr double textSize = 8.5;
    const double width = cell.bounds().size.width / 2;
    const auto label = ui::Label::withFrame({{left, top}, {width, height}});
    label.setFont(ui::Font::system(textSize));
    label.setTextColor(color);
    label.setText(text);
    cell.contentView().addSubview(label);
}

ui::Color nameColor(bool isFolder) {
    return isFolder ? ui::Color::withRed(0, 0.7490196, 1, 1)
                    : ui::Color::withRed(0.8235294, 0.4117647, 0.1176471, 1);
}

} // namespace

void fillCell(ui::TableViewCell cell, const ReportEntry& entry) {
    constexpr double dateLeft = 19;
    const double middle = cell.bounds().size.width * 0.5;
    const auto attributes =
        ns::FileManager::defaultManager().attributesOfItem(entry.url.path()).value;
    clear(cell);
    const ui::Label name = cell.textLabel();
    name.setText(entry.name());
    name.setNumberOfLines(0);
    name.setLineBreakMode(ui::LineBreakMode::wordWrapping);
    name.setTextColor(nameColor(ns::file_attributes::isDirectory(attributes)));
    addLine(cell, dateLeft, ui::Color::gray(), dateText(entry.created));
    addLine(cell, middle - 53, ui::Color::red(), permissionText(attributes));
    addLine(cell, middle + 45, ui::Color::gray(), sizeText(attributes));
}

void fillEmptyCell(ui::TableViewCell cell) {
    constexpr double textSize = 17;
    clear(cell);
    const auto text = ui::TextView::withFrame(cell.contentView().bounds());
    text.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    text.setUserInteractionEnabled(false);
    text.setTextAlignment(ui::TextAlignment::center);
    text.setFont(ui::Font::system(textSize));
    text.setText(ns::String::from(emptyText));
    cell.contentView().addSubview(text);
}

} // namespace wentra::crashlogs
