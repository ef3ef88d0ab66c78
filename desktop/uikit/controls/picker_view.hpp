// UIPickerView: wheels to choose from.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/picker_view.hpp"
#include "bindings/uikit/view.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/controls/picker_column.hpp"

#include <vector>

namespace desktop {

class PickerView : public PlatformClass<PickerView, ui::PickerView> {
public:
    static std::vector<objc::MethodRow> methods();

    ~PickerView();

    static constexpr CGSize standardSize{320, 216};

private:
    ui::View initWithFrame(CGRect frame);
    [[nodiscard]] objc::Object dataSource() const { return dataSource_; }
    void setDataSource(objc::Object source);
    [[nodiscard]] objc::Object delegate() const { return delegate_; }
    void setDelegate(objc::Object delegate);
    [[nodiscard]] long numberOfComponents();
    [[nodiscard]] long numberOfRows(long component);
    void reloadAll();
    void reload(long component);
    void select(long row, long component, bool animated);
    [[nodiscard]] long selectedRow(long component);
    [[nodiscard]] ui::View viewForRow(long row, long component);
    [[nodiscard]] CGSize rowSize(long component) const;
    void layoutSubviews();
    [[nodiscard]] CGSize sizeThatFits(CGSize) const { return standardSize; }
    [[nodiscard]] CGSize intrinsicContentSize() const { return standardSize; }

    /// The columns, made when they are first needed after a change of the data source.
    void load();
    void arrange();
    [[nodiscard]] PickerColumn* column(long component);
    [[nodiscard]] ui::View makeRow(long row, long component, ui::View former) const;
    [[nodiscard]] ns::String title(long row, long component) const;
    void chosen(long row, long component) const;
    [[nodiscard]] double width(long component) const;
    [[nodiscard]] double rowHeight(long component) const;
    template <objc::Literal Name>
    [[nodiscard]] bool answers() const {
        return delegate_.strong().respondsToSelector(objc::selector<Name>());
    }

    objc::Weak<objc::Object> dataSource_;
    objc::Weak<objc::Object> delegate_;
    objc::Strong<ui::View> band_; // behind the rows in the middle
    std::vector<objc::Strong<PickerColumnKind>> columns_;
    bool loaded_ = false;
    CGSize latestSize_; // that the columns were made for
    bool showsSelectionIndicator_ = true;
};

} // namespace desktop
