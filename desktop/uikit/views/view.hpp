// UIView: the tree of views, their geometry and their layout.
#pragma once

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/gesture_recognizer.hpp"
#include "bindings/uikit/view.hpp"
#include "bindings/uikit/view_controller.hpp"

#include "bindings/foundation/string.hpp"
#include "desktop/class.hpp"
#include "desktop/quartzcore/layer.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"

#include <memory>
#include <vector>

namespace desktop {

class ViewConstraints;

class View : public PlatformClass<View, ui::View> {
public:
    static std::vector<objc::MethodRow> methods();

    View();
    ~View();

    [[nodiscard]] Layer& layer() const { return Layer::of(layer_); }
    /// Back to front.
    [[nodiscard]] const std::vector<objc::Strong<ui::View>>& children() const { return subviews_; }
    [[nodiscard]] ui::View superview() const { return superview_; }
    [[nodiscard]] ui::Color backgroundColor() const;

    [[nodiscard]] const Traits& traits() const { return traits_; }
    /// Of what the view is in.
    [[nodiscard]] Traits outerTraits() const;
    /// What the view is in has these traits; tells what they change.
    void inherit(const Traits& outer);
    /// The view and what is in it stand before the rest, and look so in the dark.
    void elevate();

    /// Its part in constraints, made when it is first asked for.
    [[nodiscard]] ViewConstraints& constraints();

    /// The controller whose view this is; it outlives that role, or takes it back.
    void setController(ui::ViewController controller) { controller_ = controller; }
    [[nodiscard]] ui::ViewController controller() const { return controller_; }

private:
    ui::View initWithFrame(CGRect frame);
    ui::View init() { return self().send<"initWithFrame:", ui::View>(CGRect()); }

    [[nodiscard]] ca::Layer layerObject() const { return layer_; }
    [[nodiscard]] CGRect frame() const { return layer().frame(); }
    void setFrame(CGRect frame);
    [[nodiscard]] CGRect bounds() const { return layer().bounds(); }
    void setBounds(CGRect bounds);
    [[nodiscard]] CGPoint center() const { return layer().position(); }
    void setCenter(CGPoint center) { layer().setPosition(center); }
    [[nodiscard]] CGAffineTransform transform() const { return layer().transform(); }
    void setTransform(CGAffineTransform transform) { layer().setTransform(transform); }
    [[nodiscard]] double alpha() const { return static_cast<double>(layer().opacity()); }
    void setAlpha(double alpha);
    void setBackgroundColor(ui::Color color);
    [[nodiscard]] bool isHidden() const { return layer().isHidden(); }
    void setHidden(bool hidden) { layer().setHidden(hidden); }
    [[nodiscard]] bool clipsToBounds() const { return layer().masksToBounds(); }
    void setClipsToBounds(bool clips) { layer().setMasksToBounds(clips); }
    [[nodiscard]] ui::Color tintColor() const;
    void setTintColor(ui::Color color);
    void tintChanged();
    [[nodiscard]] ui::TraitCollection traitCollection() const;
    [[nodiscard]] ui::InterfaceStyle overrideStyle() const { return overrides_.style; }
    void setOverrideStyle(ui::InterfaceStyle style);
    void showInTraits();
    [[nodiscard]] bool isOpaque() const { return true; }

    [[nodiscard]] ns::Array subviews() const;
    [[nodiscard]] ui::Window window() const;
    [[nodiscard]] ui::Responder nextResponder() const;
    void addSubview(ui::View view);
    void insertAtIndex(ui::View view, long index);
    void insertAbove(ui::View view, ui::View sibling);
    void insertBelow(ui::View view, ui::View sibling);
    void bringToFront(ui::View view);
    void sendToBack(ui::View view);
    void removeFromSuperview();
    void insert(ui::View view, std::size_t index);
    void leaveSuperview();
    [[nodiscard]] std::size_t indexOf(ui::View view) const;
    [[nodiscard]] bool isDescendantOf(ui::View ancestor) const;
    [[nodiscard]] ui::View viewWithTag(long tag) const;
    static void announceWindow(ui::View view, ui::Window window);
    void ignoreMove(objc::Object) {}

    [[nodiscard]] CGAffineTransform toWindow() const;
    [[nodiscard]] CGAffineTransform to(ui::View other) const;
    [[nodiscard]] CGPoint convertPointTo(CGPoint point, ui::View other) const;
    [[nodiscard]] CGPoint convertPointFrom(CGPoint point, ui::View other) const;
    [[nodiscard]] CGRect convertRectTo(CGRect rect, ui::View other) const;
    [[nodiscard]] CGRect convertRectFrom(CGRect rect, ui::View other) const;
    [[nodiscard]] UIEdgeInsets safeAreaInsets() const;

    void layoutSubviews() {}
    void tellSafeArea();
    void setNeedsLayout();
    void layoutIfNeeded();
    void layOut();
    void setNeedsDisplay() { layer().setNeedsDisplay(); }
    void drawRect(CGRect) {}
    bool drawHierarchy(CGRect rect, bool afterUpdates);
    /// With all that is in it. False when there is nothing to be seen.
    bool draw(Canvas& canvas, CGRect rect) const;
    [[nodiscard]] CGSize sizeThatFits(CGSize) const { return bounds().size; }
    void sizeToFit();
    [[nodiscard]] CGSize intrinsicContentSize() const;
    void resizeChildren(CGSize former);
    void autoresize(CGSize former, CGSize current);

    [[nodiscard]] ns::Array gestureRecognizers() const;
    void addGestureRecognizer(ui::GestureRecognizer recognizer);
    void removeGestureRecognizer(ui::GestureRecognizer recognizer);
    void releaseRecognizers();
    [[nodiscard]] ns::Array interactions() const;
    void addInteraction(objc::Object interaction);
    void removeInteraction(objc::Object interaction);
    [[nodiscard]] bool gestureRecognizerShouldBegin(ui::GestureRecognizer) const { return true; }
    bool endEditing(bool force);
    [[nodiscard]] ui::View hitTest(CGPoint point, ui::Event event) const;
    [[nodiscard]] bool pointInside(CGPoint point, ui::Event event) const;

    objc::Strong<ca::Layer> layer_;
    std::vector<objc::Strong<ui::View>> subviews_;
    ui::View superview_;
    ui::ViewController controller_;
    objc::Strong<ui::Color> tintColor_;
    /// Nil unless the background adapts.
    objc::Strong<ui::Color> dynamicBackground_;
    Traits traits_ = screenTraits();
    Traits overrides_;
    UIEdgeInsets toldSafeArea_;
    objc::Copied<ns::String> accessibilityLabel_;
    objc::Copied<ns::String> accessibilityIdentifier_;
    objc::Copied<ns::String> restorationIdentifier_;
    objc::Strong<ns::MutableArray> recognizers_;
    objc::Strong<ns::MutableArray> interactions_;
    std::unique_ptr<ViewConstraints> constraints_;
    long tag_ = 0;
    long contentMode_ = 0;
    ui::ViewAutoresizing autoresizingMask_{};
    bool userInteractionEnabled_ = true;
    bool multipleTouchEnabled_ = false;
    bool needsLayout_ = true;
};

/// A measure for which a view has no size of its own.
inline constexpr double noIntrinsicMetric = -1;

} // namespace desktop
