// Text views: their text, their place in the scrolled content, and their delegate.
#include "desktop/uikit/text/text_view.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/delegate_messages.hpp"
#include "desktop/uikit/text/text_alignment.hpp"

#include <algorithm>

namespace desktop {
namespace {

using namespace ns::literals;

void post(ns::String name, objc::Object view) {
    ns::NotificationCenter::defaultCenter().post(name, view);
}

} // namespace

std::vector<objc::MethodRow> TextView::methods() {
    std::vector<objc::MethodRow> rows = textInputMethods();
    rows.insert(
        rows.end(),
        {
            objc::method<"initWithFrame:", &TextView::initWithFrame>(),
            objc::property<"textAlignment", &TextView::alignment_, &TextView::alignmentChanged>(),
            objc::property<"textContainerInset", &TextView::inset_, &TextView::containerChanged>(),
            objc::property<"selectedRange", &TextView::selectedRange,
                           &TextView::setSelectedRange>(),
            objc::flag<"editable", &TextView::editable_, &TextView::editingChanged>(),
            objc::flag<"selectable", &TextView::selectable_, &TextView::editingChanged>(),
            objc::method<"textStorage", &TextView::storage>(),
            objc::method<"textContainer", &TextView::container_>(),
            objc::method<"layoutManager", &TextView::layoutManager_>(),
            objc::method<"scrollRangeToVisible:", &TextView::scrollRangeToVisible>(),
            objc::method<"canBecomeFirstResponder", &TextView::canBecomeFirstResponder>(),
            objc::method<"layoutSubviews", &TextView::layoutSubviews>(),
            objc::method<"drawRect:", &TextView::drawRect>(),
            objc::method<"contentSize", &TextView::contentSize>(),
            objc::method<"sizeThatFits:", &TextView::sizeThatFits>(),
            objc::method<"intrinsicContentSize", &TextView::intrinsicContentSize>(),
        });
    return rows;
}

ui::TextView TextView::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    LayoutManager::of(layoutManager_).setView(self());
    TextContainer::of(container_).setView(self());
    setFont(nullptr);
    setTextColor(nullptr);
    self().setBackgroundColor(ui::Color::systemBackground());
    addRecognizers();
    return self();
}

TextView::~TextView() {
    LayoutManager::of(layoutManager_).setView(nullptr);
    TextContainer::of(container_).setView(nullptr);
}

double TextView::defaultFontSize() const {
    constexpr double size = 12;
    return size;
}

CGRect TextView::textArea() const {
    const double padding = container_.lineFragmentPadding();
    const double width = self().bounds().size.width - inset_.left - inset_.right - 2 * padding;
    return {{inset_.left + padding, inset_.top}, {width, 0}};
}

void TextView::containerChanged() {
    self().setNeedsLayout();
    self().setNeedsDisplay();
}

void TextView::alignmentChanged() {
    flow().setAlignment(drawnAlignment(alignment_));
    containerChanged();
}

void TextView::editingChanged() {
    if (!canBecomeFirstResponder()) {
        self().resignFirstResponder();
    }
    self().setNeedsLayout();
}

/// Brought up to date when it is asked for, as it costs more than an edit.
CGSize TextView::contentSize() {
    const CGSize size{self().bounds().size.width,
                      flow().size().height + inset_.top + inset_.bottom};
    if (size != super<"contentSize", CGSize>()) {
        super<"setContentSize:">(size);
    }
    return size;
}

void TextView::layoutSubviews() {
    contentSize();
    revealCaret();
    super<"layoutSubviews">();
    placeSelection();
}

void TextView::drawRect(CGRect) {
    if (Canvas* canvas = currentCanvas(); canvas != nullptr) {
        const CGRect area = textArea();
        flow().draw(canvas->context(), {area.origin.x, area.origin.y});
    }
}

CGSize TextView::sizeThatFits(CGSize room) const {
    const double edges = inset_.left + inset_.right + 2 * container_.lineFragmentPadding();
    TextFlow flow(*this);
    flow.setWidth(room.width > 0 ? room.width - edges : TextFrame::unlimited);
    const Size text = flow.size();
    return {text.width + edges, text.height + inset_.top + inset_.bottom};
}

/// A text view that does not scroll is as high as its text.
CGSize TextView::intrinsicContentSize() const {
    if (self().send<"isScrollEnabled", bool>()) {
        return super<"intrinsicContentSize", CGSize>();
    }
    return sizeThatFits({self().bounds().size.width, 0});
}

void TextView::scrollRangeToVisible(ns::Range range) {
    forgetCaret();
    reveal(boundingRect(range));
}

/// Scrolls no further than needed; of what is too high, the top is shown.
void TextView::reveal(CGRect rect) {
    const CGSize room = self().bounds().size;
    const auto insets = self().send<"adjustedContentInset", UIEdgeInsets>();
    CGPoint offset = self().contentOffset();
    const double top = rect.origin.y - inset_.top - insets.top;
    const double bottom =
        rect.origin.y + rect.size.height + inset_.bottom + insets.bottom - room.height;
    const double lowest = contentSize().height + insets.bottom - room.height;
    offset.y = std::min(std::max(offset.y, std::min(bottom, lowest)), top);
    offset.y = std::max(offset.y, -insets.top);
    if (offset != self().contentOffset()) {
        self().setContentOffset(offset);
        self().setNeedsDisplay();
        self().setNeedsLayout();
    }
}

void TextView::pressReturn() { type(u"\n"_ns); }

objc::Object TextView::delegate() const { return self().send<"delegate", objc::Object>(); }

bool TextView::mayChange(ns::Range range, ns::String text) {
    return allows<"textView:shouldChangeTextInRange:replacementText:">(delegate(), self(), range,
                                                                       text);
}

void TextView::tellChange() {
    tell<"textViewDidChange:">(delegate(), self());
    post(u"UITextViewTextDidChangeNotification"_ns, self());
}

void TextView::tellSelectionChange() { tell<"textViewDidChangeSelection:">(delegate(), self()); }

bool TextView::mayBegin() { return allows<"textViewShouldBeginEditing:">(delegate(), self()); }

void TextView::tellBegin() {
    tell<"textViewDidBeginEditing:">(delegate(), self());
    post(u"UITextViewTextDidBeginEditingNotification"_ns, self());
}

bool TextView::mayEnd() { return allows<"textViewShouldEndEditing:">(delegate(), self()); }

void TextView::tellEnd() {
    tell<"textViewDidEndEditing:">(delegate(), self());
    post(u"UITextViewTextDidEndEditingNotification"_ns, self());
}

} // namespace desktop
