// Cells of tables: texts, accessories and what lies behind them.
#include "desktop/uikit/lists/table_view_cell.hpp"

#include "desktop/uikit/application/screen.hpp"

#include <algorithm>

namespace desktop {
namespace {

using namespace ns::literals;

// Points, as on the phone.
constexpr double cellMargin = 16;
constexpr double titleSize = 17;
constexpr double detailSize = 15;
constexpr double subtitleSize = 12;
constexpr double accessoryWidth = 14;
constexpr double pickingWidth = 38;

/// Of the content, for image and texts.
CGRect textRoom(CGSize content) {
    return {{cellMargin, 0},
            {std::max(0.0, content.width - cellMargin - cellMargin / 2), content.height}};
}

} // namespace

std::vector<objc::MethodRow> TableViewCell::methods() {
    using Self = TableViewCell;
    return {
        objc::method<"initWithStyle:reuseIdentifier:", &Self::initWithStyle>(),
        objc::method<"initWithFrame:", &Self::initWithFrame>(),
        objc::method<"reuseIdentifier", &Self::identifier_>(),
        objc::method<"prepareForReuse", &Self::prepareForReuse>(),
        objc::method<"textLabel", &Self::textLabel>(),
        objc::method<"detailTextLabel", &Self::detailTextLabel>(),
        objc::method<"imageView", &Self::imageView>(),
        objc::method<"contentView", &Self::contentView>(),
        objc::property<"accessoryType", &Self::accessoryType, &Self::setAccessoryType>(),
        objc::property<"accessoryView", &Self::accessoryView, &Self::setAccessoryView>(),
        objc::property<"backgroundView", &Self::backgroundView, &Self::setBackgroundView>(),
        objc::property<"selectedBackgroundView", &Self::selectedBackgroundView,
                       &Self::setSelectedBackgroundView>(),
        objc::property<"selectionStyle", &Self::selectionStyle_, &Self::stateChanged>(),
        objc::property<"separatorInset", &Self::separatorInset_>(),
        objc::method<"isSelected", &Self::isSelected>(),
        objc::method<"setSelected:", &Self::setSelected>(),
        objc::method<"setSelected:animated:", &Self::setSelectedAnimated>(),
        objc::method<"isHighlighted", &Self::isHighlighted>(),
        objc::method<"setHighlighted:", &Self::setHighlighted>(),
        objc::method<"setHighlighted:animated:", &Self::setHighlightedAnimated>(),
        objc::method<"isEditing", &Self::isEditing>(),
        objc::method<"setEditing:", &Self::setEditing>(),
        objc::method<"setEditing:animated:", &Self::setEditingAnimated>(),
        objc::method<"layoutSubviews", &Self::layoutSubviews>(),
    };
}

ui::View TableViewCell::initWithFrame(CGRect) {
    return self().send<"initWithStyle:reuseIdentifier:", ui::View>(ui::TableViewCellStyle::default_,
                                                                   ns::String());
}

ui::TableViewCell TableViewCell::initWithStyle(ui::TableViewCellStyle style,
                                               ns::String identifier) {
    constexpr double width = 320;
    constexpr double height = 44;
    super<"initWithFrame:", ui::View>(CGRect{{0, 0}, {width, height}});
    style_ = style;
    identifier_ = identifier;
    self().setBackgroundColor(ui::Color::systemBackground());
    content_ = ui::View::withFrame({});
    self().addSubview(content_);
    image_ = ui::ImageView::make<"initWithFrame:">(CGRect());
    text_ = ui::Label::withFrame({});
    text_.setFont(ui::Font::system(titleSize));
    content_.addSubview(image_);
    content_.addSubview(text_);
    if (style != ui::TableViewCellStyle::default_) {
        detail_ = ui::Label::withFrame({});
        const bool below = style == ui::TableViewCellStyle::subtitle;
        detail_.setFont(ui::Font::system(below ? subtitleSize : detailSize));
        if (!below) {
            detail_.setTextColor(ui::Color::secondaryLabel());
        }
        content_.addSubview(detail_);
    }
    separator_ = ui::View::withFrame({});
    separator_.setUserInteractionEnabled(false);
    self().addSubview(separator_);
    return self();
}

void TableViewCell::setSeparator(ui::Color color, double left) {
    separator_.setBackgroundColor(color);
    separatorLeft_ = left;
    self().setNeedsLayout();
}

void TableViewCell::putBehind(objc::Strong<ui::View>& place, ui::View view) {
    place.removeFromSuperview();
    place = view;
    if (view) {
        self().insertSubview(view, place == selectedBackground_ && background_ ? 1 : 0);
    }
    stateChanged();
}

void TableViewCell::setBackgroundView(ui::View view) { putBehind(background_, view); }

void TableViewCell::setSelectedBackgroundView(ui::View view) {
    putBehind(selectedBackground_, view);
}

void TableViewCell::setAccessoryView(ui::View view) {
    accessoryView_.removeFromSuperview();
    accessoryView_ = view;
    self().addSubview(view);
    self().setNeedsLayout();
}

void TableViewCell::setAccessoryType(CellAccessory type) {
    accessory_ = type;
    accessoryMark_.removeFromSuperview();
    accessoryMark_ = nullptr;
    if (type != CellAccessory::none) {
        const bool isMark = type == CellAccessory::checkmark;
        accessoryMark_ = ui::Label::withFrame({});
        accessoryMark_.setText(isMark ? u"✓"_ns : u"›"_ns);
        accessoryMark_.setFont(ui::Font::system(titleSize + 3, ui::Font::medium));
        accessoryMark_.setTextColor(isMark ? ui::Color::systemBlue()
                                           : ui::Color::named("systemGray3Color"));
        accessoryMark_.setTextAlignment(ui::TextAlignment::right);
        self().addSubview(accessoryMark_);
    }
    self().setNeedsLayout();
}

void TableViewCell::setSelected(bool selected) {
    self().send<"setSelected:animated:">(objc::Boolean(selected), objc::Boolean(false));
}

void TableViewCell::setHighlighted(bool highlighted) {
    self().send<"setHighlighted:animated:">(objc::Boolean(highlighted), objc::Boolean(false));
}

void TableViewCell::setSelectedAnimated(bool selected, bool) {
    selected_ = selected;
    stateChanged();
}

void TableViewCell::setHighlightedAnimated(bool highlighted, bool) {
    highlighted_ = highlighted;
    stateChanged();
}

/// A selected row is grey, unless it has a view of its own for that, or no look at all.
void TableViewCell::stateChanged() {
    const bool marked = (selected_ || highlighted_) && selectionStyle_ != 0;
    if (marked && !selectedBackground_) {
        selectedBackground_ = ui::View::withFrame({});
        selectedBackground_.setBackgroundColor(ui::Color::named("systemGray4Color"));
        self().insertSubview(selectedBackground_, background_ ? 1 : 0);
        self().setNeedsLayout();
    }
    selectedBackground_.setHidden(!marked);
    showMark();
}

void TableViewCell::setEditing(bool editing) { editing_ = editing; }

void TableViewCell::setPicking(bool picks) {
    if (picks == static_cast<bool>(mark_)) {
        return;
    }
    mark_.removeFromSuperview();
    mark_ = picks ? ui::ImageView::make<"initWithFrame:">(CGRect()) : ui::ImageView();
    mark_.setContentMode(ui::ContentMode::center);
    self().addSubview(mark_);
    showMark();
    self().setNeedsLayout();
}

void TableViewCell::showMark() const {
    mark_.setImage(ui::Image::systemNamed(selected_ ? u"checkmark.circle.fill"_ns : u"circle"_ns));
    mark_.setTintColor(selected_ ? ui::Color::systemBlue() : ui::Color::named("systemGray3Color"));
}

void TableViewCell::layoutSubviews() {
    const CGSize size = self().bounds().size;
    for (const ui::View behind : {background_, selectedBackground_}) {
        behind.setFrame({{}, size});
    }
    const UIEdgeInsets safe = self().safeAreaInsets();
    double right = size.width - safe.right;
    if (accessoryView_) {
        const CGSize own = accessoryView_.bounds().size;
        right -= own.width + cellMargin;
        accessoryView_.setFrame({{right, (size.height - own.height) / 2}, own});
    } else if (accessoryMark_) {
        const double wide =
            accessory_ == CellAccessory::checkmark ? accessoryWidth + 6 : accessoryWidth;
        right -= wide + cellMargin;
        accessoryMark_.setFrame({{right, 0}, {wide, size.height}});
    }
    const double left = safe.left + (mark_ ? pickingWidth : 0);
    mark_.setFrame({{safe.left + cellMargin, 0}, {pickingWidth - cellMargin / 2, size.height}});
    content_.setFrame({{left, 0}, {std::max(0.0, right - left), size.height}});
    addTexts();
    placeTexts(textRoom(content_.bounds().size));
    const double line = 1 / ScreenGeometry::current().scale;
    const double lineLeft = safe.left + separatorLeft_;
    separator_.setFrame(
        {{lineLeft, size.height - line}, {std::max(0.0, size.width - lineLeft), line}});
}

double TableViewCell::fittingHeight(double width) const {
    constexpr double least = 44;
    const CGRect frame = self().frame();
    self().setFrame({frame.origin, {width, frame.size.height}});
    self().layoutIfNeeded();
    const CGSize content = content_.bounds().size;
    const bool isConstrained = content_.send<"constraints", ns::Array>().count() > 0;
    const double held =
        isConstrained
            ? content_.send<"systemLayoutSizeFittingSize:", CGSize>(CGSize{content.width, 0}).height
            : 0;
    return std::max({least, held, textHeight(textRoom(content).size)});
}

/// With room above and below.
double TableViewCell::textHeight(CGSize room) const {
    constexpr double verticalMargin = 12;
    double height = text_.sizeThatFits(room).height;
    if (detail_ && detail_.text().length() > 0) {
        const double below = detail_.sizeThatFits(room).height;
        height =
            style_ == ui::TableViewCellStyle::subtitle ? height + below : std::max(height, below);
    }
    return height + 2 * verticalMargin;
}

/// Whoever clears the content may use the cell's own texts again.
void TableViewCell::addTexts() const {
    for (const ui::Label text : {text_, detail_}) {
        if (text.text().length() > 0 && !text.superview()) {
            content_.insertSubview(text, 0);
        }
    }
}

void TableViewCell::placeTexts(CGRect room) const {
    const double middle = room.size.height / 2;
    const ui::Image image = image_.image();
    if (image) {
        const CGSize size = image.size();
        image_.setFrame({{room.origin.x, middle - size.height / 2}, size});
        const double taken = size.width + cellMargin;
        room.origin.x += taken;
        room.size.width = std::max(0.0, room.size.width - taken);
    }
    if (!detail_ || detail_.text().length() == 0) {
        text_.setFrame(room);
        return;
    }
    const CGSize title = text_.sizeThatFits(room.size);
    const CGSize detail = detail_.sizeThatFits(room.size);
    if (style_ == ui::TableViewCellStyle::subtitle) {
        const double top = middle - (title.height + detail.height) / 2;
        text_.setFrame({{room.origin.x, top}, {room.size.width, title.height}});
        detail_.setFrame({{room.origin.x, top + title.height}, {room.size.width, detail.height}});
        return;
    }
    const double width = std::min(detail.width, room.size.width);
    const double right = room.origin.x + room.size.width;
    detail_.setFrame({{right - width, 0}, {width, room.size.height}});
    text_.setFrame(
        {room.origin, {std::clamp(room.size.width - width, 0.0, title.width), room.size.height}});
}

} // namespace desktop
