// Making, filling and measuring rows.
#include "library/files/browser/cells.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/uikit/context_menu_interaction.hpp"
#include "bindings/uikit/string_drawing.hpp"
#include "library/files/browser/file_reading.hpp"
#include "library/files/file_kind.hpp"
#include "library/files/file_path.hpp"
#include "library/files/file_texts.hpp"
#include "library/paths/resources.hpp"

#include <algorithm>

namespace wentra::files {
namespace {

using namespace ns::literals;

constexpr double nameSize = 11.45;
constexpr double detailSize = 8;

enum Tag : long { icon = 101, name, date, size, permissions };

ui::Label addLabel(ui::TableViewCell cell, Tag tag, CGRect frame, double fontSize) {
    const auto label = ui::Label::withFrame(frame);
    label.setTag(tag);
    label.setFont(ui::Font::system(fontSize));
    cell.addSubview(label);
    return label;
}

ui::Label addRightLabel(ui::TableViewCell cell, Tag tag, CGRect frame) {
    const ui::Label label = addLabel(cell, tag, frame, detailSize);
    label.setTextAlignment(ui::TextAlignment::right);
    return label;
}

ui::TableViewCell freshCell() {
    const auto cell = ui::TableViewCell::withStyle(ui::TableViewCellStyle::subtitle, u"Cell"_ns);
    const CGSize room = cell.bounds().size;
    const double half = room.width * 0.5;
    const auto picture = ui::ImageView::withImage(nullptr);
    picture.setFrame({{0, 11}, {30, 30}});
    picture.setTag(Tag::icon);
    cell.addSubview(picture);
    addLabel(cell, Tag::name, {{35, 0}, {half + 2, room.height}}, nameSize).setNumberOfLines(0);
    addLabel(cell, Tag::date, {{35, room.height - 3}, {half, 15}}, detailSize);
    addRightLabel(cell, Tag::size, {{47, room.height - 2}, {half, 15}});
    addRightLabel(cell, Tag::permissions, {{-9, room.height - 2}, {half, 15}})
        .setTextColor(ui::Color::red());
    return cell;
}

void show(ui::TableViewCell cell, Tag tag, ns::String text) {
    cell.viewWithTag(tag).assume<ui::Label>().setText(text);
}

} // namespace

ui::TableViewCell Cells::cell(ui::TableView table, ns::IndexPath row) {
    auto cell = table.dequeueReusableCell(u"Cell"_ns);
    if (!cell) {
        cell = freshCell();
    }
    enum Side : long { left = 1, right = 2 };
    cell.setTag(panes_.isLeft(table) ? Side::left : Side::right);
    offerMenu(cell);
    fill(cell, panes_.entry(table, row).value_or(std::string()));
    return cell;
}

/// A new one each time; a cell that is used again gives the former one up.
void Cells::offerMenu(ui::TableViewCell cell) const {
    for (const objc::Object former : cell.interactions()) {
        if (former.as<ui::ContextMenuInteraction>()) {
            cell.removeInteraction(former);
        }
    }
    cell.addInteraction(ui::ContextMenuInteraction::with(self()));
}

void Cells::fill(ui::TableViewCell cell, const std::string& path) {
    const auto attributes = ns::FileManager::defaultManager().attributesOfItem(textOf(path)).value;
    const auto created = attributes.get(ns::file_attributes::creationDate()).as<ns::Date>();
    const auto bytes = attributes.get(ns::file_attributes::size()).as<ns::Number>();
    const auto bits = attributes.get(ns::file_attributes::posixPermissions()).as<ns::Number>();
    show(cell, Tag::name, attributes ? textOf(lastComponent(path)) : u"未知文件"_ns);
    show(cell, Tag::date, created ? dateText(created) : u"未知日期"_ns);
    show(cell, Tag::size, bytes ? sizeFormatted(bytes.doubleValue()) : u"未知大小"_ns);
    show(cell, Tag::permissions,
         bits ? ns::String::fromUtf8(permissionsText(bits.unsignedValue())) : u"未知权限"_ns);
    showIcon(cell.viewWithTag(Tag::icon).assume<ui::ImageView>(), path);
}

void Cells::showIcon(ui::ImageView view, const std::string& path) const {
    const std::string_view file = isFolder(path) ? folderIcon : iconOf(path);
    if (!file.empty()) {
        view.setImage(
            ui::Image::withContentsOfFile(ns::String::fromUtf8(paths::iconFolder().append(file))));
    }
}

double Cells::height(ui::TableView table, ns::IndexPath row) const {
    constexpr double least = 53.84;
    constexpr double unlimited = 1e7;
    const double width = self().view().bounds().size.width / 4 - 2;
    const auto text = textOf(panes_.name(table, row).value_or(std::string()));
    return std::max(least,
                    ui::textSize(text, {width, unlimited}, ui::Font::system(nameSize)).height);
}

ns::Date Cells::modificationDate(ns::String path) const {
    return ns::FileManager::defaultManager()
        .attributesOfItem(path)
        .value.get(ns::file_attributes::modificationDate())
        .as<ns::Date>();
}

ns::String Cells::dateText(ns::Date date) {
    if (!formatter_) {
        formatter_ = ns::DateFormatter::make();
        formatter_.setLocale(ns::Locale::withIdentifier(u"en_US_POSIX"_ns));
        formatter_.setDateFormat(u"yyyy/MM/dd HH:mm:ss"_ns);
    }
    return date ? formatter_.string(date) : nullptr;
}

ns::String Cells::sizeFormatted(double bytes) const {
    return ns::String::fromUtf8(sizeText(bytes));
}

} // namespace wentra::files
