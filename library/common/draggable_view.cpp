// Dragging, pinching and double taps; dropping on the trash.
#include "library/common/draggable_view.hpp"

#include "bindings/foundation/delayed_perform.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/common/gestures.hpp"
#include "library/common/zoom.hpp"

#include <array>

namespace wentra {
namespace {

using ui::GestureState;

/// The tag of a view that has a trash button, before the button itself is set as its tag.
constexpr long draggedTag = 98;

class TrashButtonPeer : public objc::Peer<TrashButtonPeer, TrashButton> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"pointInside:withEvent:", &TrashButtonPeer::pointInside>()};
    }

private:
    static constexpr double touchSide = 270;

    [[nodiscard]] bool pointInside(CGPoint point, ui::Event) const {
        return point.x >= 0 && point.x < touchSide && point.y >= 0 && point.y < touchSide;
    }
};

void makeDraggable(ui::View view) {
    addPan(view, view, objc::selector<"handlePan:">());
    addTap(view, view, objc::selector<"handleDoubleTap:">(), 2);
    addPinch(view, view, objc::selector<"handlePinch:">());
}

void addTrash(ui::View view, ui::Button trash) {
    addPan(view, view, objc::selector<"handlePan:">());
    view.setTag(draggedTag);
    // The message's argument arrives as the tag: a number that is the button's address.
    ns::performLater(view, objc::selector<"setTag:">(), trash, 0);
}

bool isOverTrash(ui::View view, ui::View trash) { return overlap(view.frame(), trash.frame()); }

void drag(ui::View view, ui::PanGestureRecognizer pan) {
    const ui::View space = view.superview();
    const ui::View trash = space.viewWithTag(trashTag);
    switch (pan.state()) {
    case GestureState::began:
    case GestureState::changed:
        moveAlong(view, pan, space);
        trash.setHidden(!isOverTrash(view, trash));
        break;
    case GestureState::ended:
        if (trash) {
            (isOverTrash(view, trash) ? view : trash).setHidden(true);
        }
        break;
    default:
        break;
    }
}

void pinch(ui::View view, ui::PinchGestureRecognizer pinch) {
    const GestureState state = pinch.state();
    if (state == GestureState::began || state == GestureState::changed) {
        view.setTransform(pinched(view.transform(), pinch.scale()));
        pinch.setScale(1);
    }
}

/// Double taps in text keep their own meaning.
bool isText(ui::View view) { return view.as<ui::TextView>() || view.as<ui::Label>(); }

void doubleTap(ui::View view, ui::TapGestureRecognizer tap) {
    constexpr double duration = 0.3;
    if (isText(view.hitTest(tap.locationIn(view), nullptr)) || tap.state() != GestureState::ended) {
        return;
    }
    ui::View::animate(duration, objc::Block<void()>::from([kept = objc::Strong(view)] {
                          kept.setTransform(doubleTapped(kept.transform()));
                      }));
}

} // namespace

void registerTrashButton() { TrashButtonPeer::registerClass(); }

std::span<const objc::Change> draggableCategory() {
    static constexpr std::array changes{
        objc::addition<"makeDraggableAndZoomable", &makeDraggable>(),
        objc::addition<"makeDraggableAndZoomableWithTrashButton:", &addTrash>(),
        objc::addition<"handlePan:", &drag>(),
        objc::addition<"handlePinch:", &pinch>(),
        objc::addition<"handleDoubleTap:", &doubleTap>(),
    };
    return changes;
}

void makeDraggableAndZoomable(ui::View view) { view.send<"makeDraggableAndZoomable">(); }

void makeDraggableAndZoomable(ui::View view, TrashButton trash) {
    view.send<"makeDraggableAndZoomableWithTrashButton:">(trash);
}

void moveAlong(ui::View view, ui::PanGestureRecognizer pan, ui::View space) {
    const CGPoint way = pan.translationIn(space);
    const CGPoint centre = view.center();
    view.setCenter({centre.x + way.x, centre.y + way.y});
    pan.setTranslation({}, space);
}

void scaleAlong(ui::View view, ui::PinchGestureRecognizer pinch) {
    view.setTransform(scaled(view.transform(), pinch.scale()));
    pinch.setScale(1);
}

} // namespace wentra
