// The view of an alert: a card with title, message, fields and actions, and perhaps another one
// with the cancel action.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/alert_controller.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/scroll_view.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/alerts/alert_layout.hpp"
#include "desktop/uikit/alerts/alert_row.hpp"

#include <vector>

namespace desktop {

struct AlertViewKind : objc::Kind<AlertViewKind, "_UIAlertControllerView", ui::View> {
    using Kind::Kind;
};

class AlertView : public PlatformClass<AlertView, AlertViewKind> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"layoutSubviews", &AlertView::layoutSubviews>()};
    }
    static constexpr double messageSize = 13; // the font's, in points

    /// The alert owns the view, and is not kept by it.
    static AlertViewKind showing(ui::AlertController alert);
    /// Makes everything anew from what the alert holds.
    void rebuild();
    /// The size that it takes where that much room is free.
    [[nodiscard]] CGSize sizeIn(CGSize room);

private:
    void layoutSubviews();
    [[nodiscard]] bool isSheet() const { return isSheet_; }
    void addText(ns::String text, ui::Font font, double gap);
    void addFields();
    void addRows();
    ui::View addSeparator(ui::View parent);
    /// The height of the header in that width; places its parts on the way.
    double layOutHeader(double width);
    void layOutRows();

    objc::Weak<ui::AlertController> alert_;
    bool isSheet_ = false; // for longer than there is an alert
    AlertLayout layout_;
    CGSize room_;
    objc::Strong<ui::View> card_;
    objc::Strong<ui::View> cancelCard_;
    objc::Strong<ui::ScrollView> header_;
    objc::Strong<ui::ScrollView> list_;

    /// A label, or the box of a field, with the gap above it.
    struct Part {
        objc::Strong<ui::View> view;
        double gap;
    };
    std::vector<Part> parts_;
    std::vector<objc::Strong<AlertRowKind>> rows_;
    /// One above each row; the first lies between header and list.
    std::vector<objc::Strong<ui::View>> separators_;
    objc::Strong<AlertRowKind> cancelRow_;
};

} // namespace desktop
