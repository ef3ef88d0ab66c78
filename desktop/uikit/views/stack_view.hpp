// UIStackView: arranges views in a row or a column.
#pragma once

#include "bindings/uikit/stack_view.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class StackView : public PlatformClass<StackView, ui::StackView> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithArrangedSubviews:", &StackView::initWithArrangedSubviews>(),
            objc::method<"addArrangedSubview:", &StackView::addArrangedSubview>(),
            objc::method<"insertArrangedSubview:atIndex:", &StackView::insertArrangedSubview>(),
            objc::method<"removeArrangedSubview:", &StackView::removeArrangedSubview>(),
            objc::method<"arrangedSubviews", &StackView::arrangedSubviews>(),
            objc::method<"willRemoveSubview:", &StackView::removeArrangedSubview>(),
            objc::property<"axis", &StackView::axis_, &StackView::changed>(),
            objc::property<"spacing", &StackView::spacing_, &StackView::changed>(),
            objc::property<"distribution", &StackView::distribution_, &StackView::changed>(),
            objc::property<"alignment", &StackView::alignment_, &StackView::changed>(),
            objc::property<"layoutMargins", &StackView::margins_, &StackView::changed>(),
            objc::method<"layoutSubviews", &StackView::layoutSubviews>(),
            objc::method<"sizeThatFits:", &StackView::sizeThatFits>(),
            objc::method<"intrinsicContentSize", &StackView::intrinsicContentSize>(),
        };
    }

private:
    /// A length along the axis and a breadth across it.
    struct Extent {
        double length;
        double breadth;
    };

    ui::StackView initWithArrangedSubviews(ns::ArrayOf<ui::View> views);
    void addArrangedSubview(ui::View view);
    void insertArrangedSubview(ui::View view, unsigned long index);
    void removeArrangedSubview(ui::View view);
    [[nodiscard]] ns::Array arrangedSubviews() const;
    void changed() { self().setNeedsLayout(); }
    void layoutSubviews();
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] CGSize intrinsicContentSize() const { return sizeThatFits({0, 0}); }

    [[nodiscard]] bool isColumn() const { return axis_ == ui::Axis::vertical; }
    [[nodiscard]] Extent extent(CGSize size) const;
    [[nodiscard]] CGSize size(Extent extent) const;
    [[nodiscard]] CGRect content() const;
    [[nodiscard]] std::vector<ui::View> shown() const;
    [[nodiscard]] std::vector<Extent> natural(const std::vector<ui::View>& views,
                                              double breadth) const;
    [[nodiscard]] double share(std::vector<Extent>& extents, double length) const;
    [[nodiscard]] double across(double breadth, double room) const;

    std::vector<objc::Strong<ui::View>> arranged_;
    ui::Axis axis_ = ui::Axis::horizontal;
    double spacing_ = 0;
    ui::StackDistribution distribution_ = ui::StackDistribution::fill;
    ui::StackAlignment alignment_ = ui::StackAlignment::fill;
    UIEdgeInsets margins_;
};

} // namespace desktop
