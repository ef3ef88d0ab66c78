// Building and laying out the cards of an alert.
#include "desktop/uikit/alerts/alert_view.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "desktop/uikit/alerts/alert_controller.hpp"
#include "desktop/uikit/values/color.hpp"

#include <algorithm>

namespace desktop {
namespace {

// The platform's measures.
constexpr double cornerRadius = 14;
constexpr double titleSize = 17;
constexpr double sheetRowSize = 20;
constexpr double margin = 16;
constexpr double alertTop = 19;
constexpr double sheetTop = 14.5;
constexpr double messageGap = 3.5;
constexpr double sheetMessageGap = 7;
constexpr double fieldHeight = 26;
constexpr double fieldPadding = 5;
constexpr double firstFieldGap = 17;

ui::View newCard(ui::View parent, ui::Color colour) {
    const auto card = ui::View::withFrame({});
    card.setBackgroundColor(colour);
    card.setClipsToBounds(true);
    card.layer().setCornerRadius(cornerRadius);
    parent.addSubview(card);
    return card;
}

double hairline() { return 1 / ui::Screen::mainScreen().scale(); }

} // namespace

AlertViewKind AlertView::showing(ui::AlertController alert) {
    const auto view = AlertViewKind::make<"initWithFrame:">(CGRect());
    of(view).alert_ = alert;
    of(view).isSheet_ = alert.preferredStyle() == ui::AlertStyle::actionSheet;
    of(view).rebuild();
    return view;
}

void AlertView::rebuild() {
    for (const ui::View child : self().subviews()) {
        child.removeFromSuperview();
    }
    parts_.clear();
    rows_.clear();
    separators_.clear();
    cancelRow_ = nullptr;
    // The platform's cards let what is behind them shine through, so blurred that it is a grey.
    card_ = newCard(self(), Color::adaptive({0.949, 0.949, 0.949}, {0.149, 0.149, 0.153}));
    cancelCard_ = newCard(self(), ui::Color::named("secondarySystemGroupedBackgroundColor"));
    header_ = ui::ScrollView::withFrame({});
    list_ = ui::ScrollView::withFrame({});
    card_.addSubview(header_);
    card_.addSubview(list_);
    const double size = isSheet() ? messageSize : titleSize;
    const auto alert = alert_.strong();
    addText(alert.title(), ui::Font::system(size, ui::Font::semibold),
            isSheet() ? sheetTop : alertTop);
    addText(alert.message(), ui::Font::system(messageSize),
            parts_.empty() ? (isSheet() ? sheetTop : alertTop)
                           : (isSheet() ? sheetMessageGap : messageGap));
    addFields();
    addRows();
    self().setNeedsLayout();
}

void AlertView::addText(ns::String text, ui::Font font, double gap) {
    if (text.length() == 0) {
        return;
    }
    const auto label = ui::Label::withFrame({});
    label.setFont(font);
    label.setNumberOfLines(0);
    label.setTextAlignment(ui::TextAlignment::center);
    if (isSheet()) {
        label.setTextColor(ui::Color::sendClass<"systemGrayColor", ui::Color>());
    }
    label.setText(text);
    header_.addSubview(label);
    parts_.push_back({label, gap});
}

void AlertView::addFields() {
    constexpr double fieldCorner = 5;
    bool isFirst = true;
    for (const auto& field : AlertController::of(alert_.strong()).fieldList()) {
        const auto box = ui::View::withFrame({});
        box.setBackgroundColor(ui::Color::systemBackground());
        box.layer().setBorderColor(ui::Color::named("systemGray3Color").cgColor());
        box.layer().setBorderWidth(hairline());
        box.layer().setCornerRadius(fieldCorner);
        box.addSubview(field);
        header_.addSubview(box);
        // Boxes stand on each other with one line between them.
        parts_.push_back({box, isFirst ? firstFieldGap : -hairline()});
        isFirst = false;
    }
}

void AlertView::addRows() {
    const auto kept = alert_.strong();
    const AlertController& alert = AlertController::of(kept);
    const double size = isSheet() ? sheetRowSize : titleSize;
    const auto rowFor = [&](ui::AlertAction action) {
        const bool isCancelOfSheet = isSheet() && action.style() == ui::AlertActionStyle::cancel;
        const bool bold = action == alert.emphasised() || isCancelOfSheet;
        return AlertRow::forAction(
            action, kept, ui::Font::system(size, bold ? ui::Font::semibold : ui::Font::regular));
    };
    for (const auto& action : alert.actionList()) {
        if (action.style() == ui::AlertActionStyle::cancel) {
            cancelRow_ = rowFor(action);
        } else {
            rows_.emplace_back(rowFor(action));
        }
    }
    if (cancelRow_ && isSheet()) {
        cancelCard_.addSubview(cancelRow_);
    } else if (cancelRow_) {
        rows_.emplace_back(cancelRow_); // where it lies is decided with the layout
    }
    for (const auto& row : rows_) {
        list_.addSubview(row);
    }
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        separators_.emplace_back(addSeparator(row == 0 ? ui::View(card_) : ui::View(list_)));
    }
}

ui::View AlertView::addSeparator(ui::View parent) {
    const auto line = ui::View::withFrame({});
    line.setBackgroundColor(ui::Color::sendClass<"separatorColor", ui::Color>());
    line.setUserInteractionEnabled(false);
    parent.addSubview(line);
    return line;
}

double AlertView::layOutHeader(double width) {
    const double room = std::max(0.0, width - 2 * margin);
    double bottom = 0;
    for (const auto& [view, gap] : parts_) {
        const bool isText = static_cast<bool>(view.as<ui::Label>());
        const double height = isText ? view.sizeThatFits({room, 0}).height : fieldHeight;
        view.setFrame({{margin, bottom + gap}, {room, height}});
        if (!isText) {
            view.subviews().first().setFrame(
                {{fieldPadding, 0}, {room - 2 * fieldPadding, height}});
        }
        bottom += gap + height;
    }
    if (parts_.empty()) {
        return 0;
    }
    return bottom + (isSheet() ? sheetTop : alertTop + hairline());
}

CGSize AlertView::sizeIn(CGSize room) {
    room_ = room;
    AlertContent content;
    content.isSheet = isSheet();
    content.rowCount = rows_.size();
    content.hasCancelCard = isSheet() && cancelRow_;
    constexpr double shortTitle = AlertLayout::alertWidth / 2 - margin;
    content.rowsAreShort = std::ranges::all_of(
        rows_, [](const auto& row) { return AlertRow::of(row).titleWidth() <= shortTitle; });
    content.headerHeight = layOutHeader(layOutAlert(content, room).card.size.width);
    layout_ = layOutAlert(content, room);
    self().setNeedsLayout();
    return layout_.size;
}

void AlertView::layoutSubviews() {
    card_.setFrame(layout_.card);
    header_.setFrame(layout_.header);
    header_.setContentSize({layout_.header.size.width, layOutHeader(layout_.header.size.width)});
    list_.setFrame(layout_.list);
    list_.setContentSize({layout_.list.size.width, layout_.listContentHeight});
    layOutRows();
    cancelCard_.setFrame(layout_.cancelCard);
    cancelCard_.setHidden(layout_.cancelCard.size.height <= 0);
    if (isSheet()) {
        cancelRow_.setFrame({{}, layout_.cancelCard.size});
    }
}

void AlertView::layOutRows() {
    if (layout_.rows.size() != rows_.size()) {
        return; // not measured since the last change
    }
    const bool sideBySide = layout_.rows.size() > 1 && layout_.rows[1].origin.y <= 0;
    const double line = hairline();
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        // Side by side, the cancel action comes first; below each other, last.
        const std::size_t place =
            sideBySide && rows_.back() == cancelRow_ ? rows_.size() - 1 - index : index;
        rows_[index].setFrame(layout_.rows[place]);
        const CGRect row = layout_.rows[index];
        separators_[index].setFrame(sideBySide && index > 0
                                        ? CGRect{row.origin, {line, row.size.height}}
                                        : CGRect{row.origin, {row.size.width, line}});
    }
    if (!separators_.empty()) {
        separators_.front().setFrame(
            {layout_.list.origin,
             {layout_.list.size.width, layout_.header.size.height > 0 ? line : 0}});
    }
}

} // namespace desktop
