// UIView.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/array.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/objc/options.hpp"
#include "bindings/quartzcore/layer.hpp"
#include "bindings/uikit/color.hpp"
#include "bindings/uikit/responder.hpp"

namespace ui {

using objc::operator|, objc::operator&, objc::operator~;

struct Event;
struct GestureRecognizer;
struct Window;

/// How content fits into a view of another size; the platform's numbers.
enum class ContentMode : long {
    scaleToFill = 0,
    scaleAspectFit = 1,
    scaleAspectFill = 2,
    center = 4
};

/// How an animation runs; the platform's bits. The curves share two of them.
enum class ViewAnimationOptions : unsigned long {
    allowUserInteraction = 1U << 1U,
    repeat = 1U << 3U,
    autoreverse = 1U << 4U,
    overrideInheritedDuration = 1U << 5U,
    overrideInheritedCurve = 1U << 6U,
    curveEaseIn = 1U << 16U,
    curveEaseOut = 2U << 16U,
    curveLinear = 3U << 16U,
};
constexpr bool areOptions(ViewAnimationOptions) { return true; }

/// What a view resizes by itself when its superview's size changes.
enum class ViewAutoresizing : unsigned long {
    flexibleLeftMargin = 1U << 0U,
    flexibleWidth = 1U << 1U,
    flexibleRightMargin = 1U << 2U,
    flexibleTopMargin = 1U << 3U,
    flexibleHeight = 1U << 4U,
    flexibleBottomMargin = 1U << 5U,
};
constexpr bool areOptions(ViewAutoresizing) { return true; }

struct View : objc::Kind<View, "UIView", Responder> {
    using Kind::Kind;

    [[nodiscard]] CGRect frame() const { return send<"frame", CGRect>(); }
    void setFrame(CGRect frame) const { send<"setFrame:">(frame); }
    [[nodiscard]] CGRect bounds() const { return send<"bounds", CGRect>(); }
    void setBounds(CGRect bounds) const { send<"setBounds:">(bounds); }
    [[nodiscard]] CGPoint center() const { return send<"center", CGPoint>(); }
    void setCenter(CGPoint center) const { send<"setCenter:">(center); }
    [[nodiscard]] CGAffineTransform transform() const {
        return send<"transform", CGAffineTransform>();
    }
    void setTransform(CGAffineTransform transform) const { send<"setTransform:">(transform); }

    [[nodiscard]] double alpha() const { return send<"alpha", double>(); }
    void setAlpha(double alpha) const { send<"setAlpha:">(alpha); }
    [[nodiscard]] bool isHidden() const { return send<"isHidden", bool>(); }
    void setHidden(bool hidden) const { send<"setHidden:">(hidden); }
    [[nodiscard]] Color backgroundColor() const { return send<"backgroundColor", Color>(); }
    void setBackgroundColor(Color color) const { send<"setBackgroundColor:">(color); }
    [[nodiscard]] Color tintColor() const { return send<"tintColor", Color>(); }
    void setTintColor(Color color) const { send<"setTintColor:">(color); }
    void setClipsToBounds(bool clips) const { send<"setClipsToBounds:">(clips); }
    [[nodiscard]] TraitCollection traitCollection() const {
        return send<"traitCollection", TraitCollection>();
    }
    /// The style of the view and of what lies in it; `unspecified`: that of what is around it.
    void setOverrideUserInterfaceStyle(InterfaceStyle style) const {
        send<"setOverrideUserInterfaceStyle:">(style);
    }
    [[nodiscard]] InterfaceStyle overrideUserInterfaceStyle() const {
        return send<"overrideUserInterfaceStyle", InterfaceStyle>();
    }
    [[nodiscard]] long tag() const { return send<"tag", long>(); }
    void setTag(long tag) const { send<"setTag:">(tag); }
    [[nodiscard]] ca::Layer layer() const { return send<"layer", ca::Layer>(); }
    void setUserInteractionEnabled(bool enabled) const {
        send<"setUserInteractionEnabled:">(enabled);
    }
    [[nodiscard]] bool isUserInteractionEnabled() const {
        return send<"isUserInteractionEnabled", bool>();
    }
    [[nodiscard]] bool isMultipleTouchEnabled() const {
        return send<"isMultipleTouchEnabled", bool>();
    }

    [[nodiscard]] View superview() const { return send<"superview", View>(); }
    /// Back to front; a snapshot.
    [[nodiscard]] ns::ArrayOf<View> subviews() const {
        return send<"subviews", ns::ArrayOf<View>>();
    }
    /// Defined with the windows, in window.hpp.
    [[nodiscard]] Window window() const;
    void addSubview(View view) const { send<"addSubview:">(view); }
    void bringSubviewToFront(View view) const { send<"bringSubviewToFront:">(view); }
    void insertSubview(View view, long index) const { send<"insertSubview:atIndex:">(view, index); }
    void insertSubviewBelow(View view, View sibling) const {
        send<"insertSubview:belowSubview:">(view, sibling);
    }
    void removeFromSuperview() const { send<"removeFromSuperview">(); }
    /// Also of itself.
    [[nodiscard]] bool isDescendantOf(View view) const {
        return send<"isDescendantOfView:", bool>(view);
    }
    [[nodiscard]] View viewWithTag(long tag) const { return send<"viewWithTag:", View>(tag); }
    [[nodiscard]] ns::ArrayOf<GestureRecognizer> gestureRecognizers() const {
        return send<"gestureRecognizers", ns::ArrayOf<GestureRecognizer>>();
    }
    /// The view keeps the recognizer; it leaves the view that had it before. These two are defined
    /// with the recognizers, in gesture_recognizer.hpp.
    void addGestureRecognizer(GestureRecognizer recognizer) const;
    void removeGestureRecognizer(GestureRecognizer recognizer) const;
    /// Context menus' and others; a snapshot.
    [[nodiscard]] ns::Array interactions() const {
        return send<"interactions", ns::Array>().copied();
    }
    /// The view keeps it.
    void addInteraction(objc::Object interaction) const { send<"addInteraction:">(interaction); }
    void removeInteraction(objc::Object interaction) const {
        send<"removeInteraction:">(interaction);
    }
    /// The front-most view inside this one that takes touches at the point (in this view's
    /// coordinates), or nil. The event may be nil. Defined with the events, in event.hpp.
    [[nodiscard]] View hitTest(CGPoint point, Event event) const;
    [[nodiscard]] bool pointInside(CGPoint point, Event event) const;

    void layoutSubviews() const { send<"layoutSubviews">(); }
    void setNeedsLayout() const { send<"setNeedsLayout">(); }
    void layoutIfNeeded() const { send<"layoutIfNeeded">(); }
    void setNeedsDisplay() const { send<"setNeedsDisplay">(); }
    void drawRect(CGRect dirty) const { send<"drawRect:">(dirty); }
    /// Draws the view and what lies in it, as the screen shows them, into the current image
    /// context; after what has been changed has come to the screen, or as it is there now.
    bool drawHierarchy(CGRect rect, bool afterScreenUpdates) const {
        return send<"drawViewHierarchyInRect:afterScreenUpdates:", bool>(rect, afterScreenUpdates);
    }
    [[nodiscard]] ContentMode contentMode() const { return send<"contentMode", ContentMode>(); }
    void setContentMode(ContentMode mode) const { send<"setContentMode:">(mode); }
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const {
        return send<"sizeThatFits:", CGSize>(room);
    }
    void sizeToFit() const { send<"sizeToFit">(); }
    [[nodiscard]] CGSize intrinsicContentSize() const {
        return send<"intrinsicContentSize", CGSize>();
    }
    /// A rectangle of this view in the coordinates of `other` (nil: the window).
    [[nodiscard]] CGRect convertRect(CGRect rect, View other) const {
        return send<"convertRect:toView:", CGRect>(rect, other);
    }
    [[nodiscard]] CGPoint convertPoint(CGPoint point, View other) const {
        return send<"convertPoint:toView:", CGPoint>(point, other);
    }
    [[nodiscard]] UIEdgeInsets safeAreaInsets() const {
        return send<"safeAreaInsets", UIEdgeInsets>();
    }
    [[nodiscard]] ns::String accessibilityLabel() const {
        return send<"accessibilityLabel", ns::String>();
    }
    void setAccessibilityLabel(ns::String label) const { send<"setAccessibilityLabel:">(label); }
    /// A text that the view keeps; it means nothing to the system unless screens are restored.
    [[nodiscard]] ns::String restorationIdentifier() const {
        return send<"restorationIdentifier", ns::String>();
    }
    void setRestorationIdentifier(ns::String identifier) const {
        send<"setRestorationIdentifier:">(identifier);
    }
    void setAutoresizingMask(ViewAutoresizing mask) const { send<"setAutoresizingMask:">(mask); }

    static View withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    using Changes = objc::Block<void()>;
    using Completion = objc::Block<void(bool finished)>;
    /// What `changes` changes of views moves there in that many seconds; then `completion`, which
    /// may be nil.
    static void animate(double seconds, Changes changes, Completion completion = {}) {
        sendClass<"animateWithDuration:animations:completion:">(seconds, changes, completion);
    }
    static void animate(double seconds, double delay, ViewAnimationOptions options, Changes changes,
                        Completion completion = {}) {
        sendClass<"animateWithDuration:delay:options:animations:completion:">(
            seconds, delay, options, changes, completion);
    }
    static void performWithoutAnimation(Changes changes) {
        sendClass<"performWithoutAnimation:">(changes);
    }
};

} // namespace ui
