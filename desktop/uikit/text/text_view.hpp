// UITextView: text of any length that scrolls and can be edited.
#pragma once

#include "bindings/uikit/label.hpp"
#include "bindings/uikit/text_view.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/text/layout_manager.hpp"
#include "desktop/uikit/text/text_input.hpp"

namespace desktop {

class TextView : public PlatformClass<TextView, ui::TextView>, public TextInput {
public:
    using Peer::border;
    using Peer::of;
    static std::vector<objc::MethodRow> methods();

    ~TextView() override;

    /// The text container's padding has changed.
    void containerChanged();

    [[nodiscard]] bool isEditable() const override { return editable_; }
    void pressReturn() override;

private:
    ui::TextView initWithFrame(CGRect frame);
    [[nodiscard]] ns::Range selectedRange() const { return selection(); }
    void setSelectedRange(ns::Range range) { select(range); }
    void scrollRangeToVisible(ns::Range range);
    [[nodiscard]] bool canBecomeFirstResponder() const { return editable_ || selectable_; }
    void editingChanged();
    void alignmentChanged();
    void layoutSubviews();
    void drawRect(CGRect dirty);
    CGSize contentSize();
    [[nodiscard]] CGSize intrinsicContentSize() const;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] objc::Object delegate() const;

    // TextInput
    [[nodiscard]] ui::View view() const override { return self(); }
    [[nodiscard]] CGRect textArea() const override;
    [[nodiscard]] double defaultFontSize() const override;
    [[nodiscard]] bool isSelectable() const override { return selectable_; }
    [[nodiscard]] bool mayChange(ns::Range range, ns::String text) override;
    void tellChange() override;
    void tellSelectionChange() override;
    [[nodiscard]] bool mayBegin() override;
    void tellBegin() override;
    [[nodiscard]] bool mayEnd() override;
    void tellEnd() override;
    void reveal(CGRect caret) override;

    objc::Strong<ui::TextContainer> container_ = ui::TextContainer::make();
    objc::Strong<ui::LayoutManager> layoutManager_ = ui::LayoutManager::make();
    ui::TextAlignment alignment_ = ui::TextAlignment::natural;
    UIEdgeInsets inset_{8, 0, 8, 0};
    bool editable_ = true;
    bool selectable_ = true;
};

} // namespace desktop
