// The ball, the panel and the pasteboard.
#include "library/toolbox/view_model.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/foundation/date.hpp"
#include "bindings/foundation/delayed_perform.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/run_loop.hpp"
#include "bindings/foundation/thread.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/screen.hpp"
#include "library/common/draggable_view.hpp"
#include "library/common/screens.hpp"
#include "library/common/string_array.hpp"
#include "library/labels/color_from_string.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/panel_layout.hpp"
#include "library/toolbox/panel_views.hpp"
#include "library/toolbox/tokens.hpp"

#include <array>
#include <string>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using preferences::keys;
using preferences::Preferences;

// Seconds.
constexpr double startUpDelay = 0.3;
constexpr double panelDelay = 0.3;
constexpr double timedBallSeconds = 5;

CGSize screenSize() { return ui::Screen::mainScreen().bounds().size; }

class ViewModelPeer : public objc::Peer<ViewModelPeer, ViewModel> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"floatingView", &ViewModelPeer::ball_>(),
            objc::property<"contentView", &ViewModelPeer::panel_>(),
            objc::property<"backgroundView", &ViewModelPeer::dimming_>(),
            objc::property<"copiedTextView", &ViewModelPeer::editor_>(),
            objc::property<"button", &ViewModelPeer::marker_>(),
            objc::property<"floatingVC", &ViewModelPeer::body_>(),
            objc::property<"isSwitchOn", &ViewModelPeer::timed_>(),

            objc::method<"init", &ViewModelPeer::init>(),
            objc::method<"setup", &ViewModelPeer::setUp>(),
            objc::method<"updateView", &ViewModelPeer::update>(),
            objc::method<"getKeyWindow", &ViewModelPeer::window>(),

            objc::method<"showFloatingView", &ViewModelPeer::showBall>(),
            objc::method<"showFloatingViewWithTimeLimit", &ViewModelPeer::showBallForATime>(),
            objc::method<"hideFloatingView", &ViewModelPeer::hideBall>(),
            objc::method<"moveFloatingView:", &ViewModelPeer::moveBall>(),

            objc::method<"pasteboardChanged:", &ViewModelPeer::pasteboardChanged>(),
            objc::method<"pasteboardChanged1:", &ViewModelPeer::pasteboardChangedTimed>(),
            objc::method<"showTextPanel", &ViewModelPeer::showPanelSoon>(),
            objc::method<"hideTextPanel", &ViewModelPeer::hidePanel>(),
            objc::method<"moveContentView:", &ViewModelPeer::movePanel>(),

            objc::method<"textViewDidBeginEditing:", &ViewModelPeer::editingBegan>(),
            objc::method<"textViewDidEndEditing:", &ViewModelPeer::editingEnded>(),
            objc::method<"gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:",
                         &ViewModelPeer::recognizesBoth>(),
            objc::method<"currentTimeStamp", &ViewModelPeer::timeStamp>(),
        };
    }

    ~ViewModelPeer() { ns::NotificationCenter::defaultCenter().removeObserver(self()); }

private:
    ViewModel init();
    void setUp();
    void observePasteboard(SEL action);
    void update();
    [[nodiscard]] ui::Window window() const { return keyWindow(); }

    void showBall();
    void showBallForATime();
    void hideBall();
    void moveBall(ui::PanGestureRecognizer pan);

    void pasteboardChanged(ns::Notification notification);
    void pasteboardChangedTimed(ns::Notification notification);
    template <class Work>
    void onMainThread(Work work);
    void take(ns::String copied, bool opens);
    void showPanelSoon();
    void showPanel();
    void hidePanel();
    void movePanel(ui::PanGestureRecognizer pan);

    void editingBegan(ui::TextView) { marker_.setEnabled(true); }
    void editingEnded(ui::TextView);
    [[nodiscard]] bool recognizesBoth(ui::GestureRecognizer, ui::GestureRecognizer) const {
        return true;
    }
    [[nodiscard]] ns::String timeStamp() const;

    objc::Strong<ui::View> ball_;
    objc::Strong<ui::View> panel_;
    objc::Strong<ui::View> dimming_;
    objc::Strong<ui::TextView> editor_;
    objc::Strong<ui::Button> marker_;
    objc::Strong<FloatingViewController> body_;
    bool timed_ = false;
};

ViewModel ViewModelPeer::init() {
    super<"init", objc::Object>();
    setUp();
    const auto preferences = Preferences::read();
    const auto layout = PanelLayout::from(preferences);
    const std::u16string colour = preferences.text(keys.panelColour);
    body_ = FloatingViewController::make();
    ball_ = makeBall(layout.ballSide, self());
    panel_ = makePanel(
        layout.panelHeight, screenSize(),
        labels::colorFromString(colour.empty() ? u"white"_ns : ns::String::from(colour)), self());
    editor_ = makeEditor(layout.editor(screenSize()), self());
    marker_ = makeMarker();
    editor_.addSubview(marker_);
    panel_.addSubview(editor_);
    panel_.addSubview(body_.view());
    dimming_ = makeDimming(screenSize(), self());
    observePasteboard(objc::selector<"pasteboardChanged:">());
    return self();
}

void ViewModelPeer::setUp() {
    timed_ = Preferences::read().on(keys.timedButton);
    if (timed_) {
        observePasteboard(objc::selector<"pasteboardChanged1:">());
    }
}

void ViewModelPeer::observePasteboard(SEL action) {
    ns::NotificationCenter::defaultCenter().addObserver(
        self(), action, u"UIPasteboardChangedNotification"_ns, nullptr);
}

void ViewModelPeer::update() {
    const auto preferences = Preferences::read();
    if (!preferences.on(keys.showButton)) {
        hideBall();
    } else if (preferences.on(keys.timedButton)) {
        showBallForATime();
    } else {
        showBall();
    }
}

// --- The ball

void ViewModelPeer::showBall() {
    const ui::Window window = keyWindow();
    window.addSubview(ball_);
    window.bringSubviewToFront(ball_);
    ball_.setCenter(ballCentre(window.bounds().size, ball_.bounds().size.width));
    ball_.setAlpha(1);
}

void ViewModelPeer::showBallForATime() {
    constexpr auto hide = &objc::selector<"hideFloatingView">;
    ns::cancelPerform(self(), hide(), nullptr);
    showBall();
    ns::performLater(self(), hide(), nullptr, timedBallSeconds);
}

void ViewModelPeer::hideBall() {
    ball_.removeFromSuperview();
    ball_.setAlpha(0);
}

void ViewModelPeer::moveBall(ui::PanGestureRecognizer pan) {
    if (pan.state() == ui::GestureState::changed) {
        moveAlong(pan.view(), pan, pan.view());
    }
}

// --- The panel

void ViewModelPeer::pasteboardChanged(ns::Notification) {
    const bool opens = Preferences::read().on(keys.openOnCopy);
    if (const ns::String copied = ui::Pasteboard::generalPasteboard().string(); copied) {
        dispatch::async(dispatch::mainQueue(),
                        [this, keptAlive = objc::Strong(self()), text = objc::Strong(copied),
                         opens] { take(text, opens); });
    }
}

/// At once where this is the main thread already. Whoever writes the pasteboard chooses the thread.
template <class Work>
void ViewModelPeer::onMainThread(Work work) {
    if (ns::Thread::isMainThread()) {
        work();
    } else {
        dispatch::async(dispatch::mainQueue(),
                        [work, keptAlive = objc::Strong(self())] { work(); });
    }
}

void ViewModelPeer::pasteboardChangedTimed(ns::Notification) {
    onMainThread([this] { self().send<"showFloatingViewWithTimeLimit">(); });
}

void ViewModelPeer::take(ns::String copied, bool opens) {
    constexpr double right = 3;
    constexpr CGRect besideEditor{{0, -152}, {40, 20}}; // above the body that it is put into
    editor_.setText(copied);
    const ui::View body = body_.view();
    CGRect place = besideEditor;
    place.origin.x = body.bounds().size.width - place.size.width - right;
    marker_.removeFromSuperview();
    body.addSubview(marker_);
    marker_.setFrame(place);
    if (opens) {
        showPanelSoon();
    }
    const std::u16string text = copied.utf16();
    body_.updateWordsArray(stringArray(cutTokens(text)));
}

void ViewModelPeer::showPanelSoon() {
    dispatch::after(panelDelay, dispatch::mainQueue(),
                    [this, keptAlive = objc::Strong(self())] { showPanel(); });
}

void ViewModelPeer::showPanel() {
    const auto layout = PanelLayout::from(Preferences::read());
    const ui::Window window = keyWindow();
    window.addSubview(dimming_);
    window.addSubview(panel_);
    dimming_.setAlpha(1);
    panel_.setAlpha(1);
    dimming_.setFrame(ui::Screen::mainScreen().bounds());
    panel_.setFrame(layout.panel(screenSize()));
    ball_.setAlpha(0);
    // Whoever edits in the host gives up its keyboard.
    ui::Application::sharedApplication().sendAction(objc::selector<"resignFirstResponder">(),
                                                    nullptr, nullptr, nullptr);
}

void ViewModelPeer::hidePanel() {
    dimming_.setAlpha(0);
    dimming_.removeFromSuperview();
    if (!Preferences::read().on(keys.keepPanelOpen)) {
        panel_.setAlpha(0);
        panel_.removeFromSuperview();
        ball_.setAlpha(1);
    }
}

void ViewModelPeer::movePanel(ui::PanGestureRecognizer pan) {
    if (pan.state() == ui::GestureState::changed && Preferences::read().on(keys.draggablePanel)) {
        moveAlong(pan.view(), pan, pan.view());
    }
}

void ViewModelPeer::editingEnded(ui::TextView) {
    ui::Pasteboard::generalPasteboard().setString(editor_.text());
    marker_.setEnabled(false);
}

ns::String ViewModelPeer::timeStamp() const {
    return ns::String::fromUtf8(
        std::to_string(static_cast<long>(ns::Date::date().timeIntervalSince1970())));
}

} // namespace

void registerViewModel() { ViewModelPeer::registerClass(); }

void scheduleViewModel() {
    dispatch::after(startUpDelay, dispatch::mainQueue(), [] {
        static objc::Strong<ViewModel>* only = nullptr; // lives as long as the process
        only = new objc::Strong(ViewModel::make());
        only->updateView();
    });
}

} // namespace wentra::toolbox
