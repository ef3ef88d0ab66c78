// Attributes of boxes.
#include "desktop/uikit/constraints/layout_item.hpp"

namespace desktop {

LayoutBox LayoutBox::inset(UIEdgeInsets insets) const {
    LayoutBox box = *this;
    box.left.constant += insets.left;
    box.top.constant += insets.top;
    box.width.constant -= insets.left + insets.right;
    box.height.constant -= insets.top + insets.bottom;
    return box;
}

LinearExpression LayoutBox::value(LayoutAttribute attribute) const {
    const auto sum = [](LinearExpression origin, const LinearExpression& length, double part) {
        origin.add(length, part);
        return origin;
    };
    switch (attribute) {
    case LayoutAttribute::left:
    case LayoutAttribute::leading:
    case LayoutAttribute::leftMargin:
    case LayoutAttribute::leadingMargin:
        return left;
    case LayoutAttribute::right:
    case LayoutAttribute::trailing:
    case LayoutAttribute::rightMargin:
    case LayoutAttribute::trailingMargin:
        return sum(left, width, 1);
    case LayoutAttribute::top:
    case LayoutAttribute::topMargin:
    case LayoutAttribute::firstBaseline:
        return top;
    case LayoutAttribute::bottom:
    case LayoutAttribute::bottomMargin:
    case LayoutAttribute::lastBaseline:
        return sum(top, height, 1);
    case LayoutAttribute::width:
        return width;
    case LayoutAttribute::height:
        return height;
    case LayoutAttribute::centerX:
    case LayoutAttribute::centerXWithinMargins:
        return sum(left, width, 0.5);
    case LayoutAttribute::centerY:
    case LayoutAttribute::centerYWithinMargins:
        return sum(top, height, 0.5);
    case LayoutAttribute::none:
        break;
    }
    return {};
}

} // namespace desktop
