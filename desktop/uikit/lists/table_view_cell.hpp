// UITableViewCell: a row of a table.
#pragma once

#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/table_view_cell.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

/// The platform's numbers.
enum class CellAccessory : long { none = 0, disclosure = 1, detailDisclosure = 2, checkmark = 3 };

class TableViewCell : public PlatformClass<TableViewCell, ui::TableViewCell> {
public:
    static std::vector<objc::MethodRow> methods();

    /// Under the row, inset by `left` points on the left; none for a clear colour.
    void setSeparator(ui::Color color, double left);
    /// How tall the cell has to be in that width for its texts, and for what is held in its content
    /// by constraints. The cell has that width afterwards.
    [[nodiscard]] double fittingHeight(double width) const;
    /// Whether a circle before the row tells if it is picked.
    void setPicking(bool picks);

private:
    ui::TableViewCell initWithStyle(ui::TableViewCellStyle style, ns::String identifier);
    ui::View initWithFrame(CGRect frame);
    [[nodiscard]] ui::Label textLabel() const { return text_; }
    [[nodiscard]] ui::Label detailTextLabel() const { return detail_; }
    [[nodiscard]] ui::ImageView imageView() const { return image_; }
    [[nodiscard]] ui::View contentView() const { return content_; }
    [[nodiscard]] ui::View accessoryView() const { return accessoryView_; }
    void setAccessoryView(ui::View view);
    void setAccessoryType(CellAccessory type);
    [[nodiscard]] CellAccessory accessoryType() const { return accessory_; }
    [[nodiscard]] ui::View backgroundView() const { return background_; }
    void setBackgroundView(ui::View view);
    [[nodiscard]] ui::View selectedBackgroundView() const { return selectedBackground_; }
    void setSelectedBackgroundView(ui::View view);
    void putBehind(objc::Strong<ui::View>& place, ui::View view);
    void setSelectedAnimated(bool selected, bool animated);
    void setHighlightedAnimated(bool highlighted, bool animated);
    void setSelected(bool selected);
    void setHighlighted(bool highlighted);
    [[nodiscard]] bool isSelected() const { return selected_; }
    [[nodiscard]] bool isHighlighted() const { return highlighted_; }
    void stateChanged();
    void prepareForReuse() {}
    void layoutSubviews();
    void placeTexts(CGRect room) const;
    [[nodiscard]] double textHeight(CGSize room) const;
    [[nodiscard]] bool isEditing() const { return editing_; }
    void setEditing(bool editing);
    void setEditingAnimated(bool editing, bool) { setEditing(editing); }
    void showMark() const;
    void addTexts() const;

    ui::TableViewCellStyle style_ = ui::TableViewCellStyle::default_;
    CellAccessory accessory_ = CellAccessory::none;
    long selectionStyle_ = 3; // the standard grey
    bool selected_ = false;
    bool highlighted_ = false;
    double separatorLeft_ = 0;
    UIEdgeInsets separatorInset_;
    objc::Copied<ns::String> identifier_;
    objc::Strong<ui::View> content_;
    objc::Strong<ui::Label> text_;
    objc::Strong<ui::Label> detail_;
    objc::Strong<ui::ImageView> image_;
    objc::Strong<ui::View> accessoryView_;
    objc::Strong<ui::Label> accessoryMark_;
    objc::Strong<ui::View> background_;
    objc::Strong<ui::View> selectedBackground_;
    objc::Strong<ui::View> separator_;
    objc::Strong<ui::ImageView> mark_; ///< while rows are picked
    bool editing_ = false;
};

} // namespace desktop
