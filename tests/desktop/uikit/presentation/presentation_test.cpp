// Controllers that present others, contain them and appear: order, refusals, alerts.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/alert_controller.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"

namespace {

using namespace ns::literals;

struct NotedControllerKind
    : objc::Kind<NotedControllerKind, "WTTestNotedController", ui::ViewController> {
    using Kind::Kind;
};

/// A controller that notes: "A" will appear, "a" did appear, "D" will disappear, "d" did disappear,
/// "l" layout.
class NotedController
    : public objc::Peer<NotedController, NotedControllerKind, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"viewWillAppear:", &NotedController::note<'A'>>(),
            objc::method<"viewDidAppear:", &NotedController::note<'a'>>(),
            objc::method<"viewWillDisappear:", &NotedController::note<'D'>>(),
            objc::method<"viewDidDisappear:", &NotedController::note<'d'>>(),
        };
    }
    std::string seen;

private:
    template <char Letter>
    void note(bool) {
        seen += Letter;
    }
};

class Presenting : public tests::TouchTest {
protected:
    static void SetUpTestSuite() {
        TouchTest::SetUpTestSuite();
        NotedController::registerClass();
    }
    Presenting() {
        window_.setRootViewController(root_);
        settle();
    }
    ~Presenting() override { window_.setRootViewController(nullptr); }

    static void settle() { desktop::run_loop::runUntilIdle(); }
    static void finish() { desktop::run_loop::advance(1); }
    static std::string take(ui::ViewController controller) {
        return std::exchange(NotedController::of(controller).seen, {});
    }
    ui::ViewController::Completion noting(const char* what) {
        return ui::ViewController::Completion::from([this, what] { order_ += what; });
    }
    ui::AlertAction action(ns::String title, ui::AlertActionStyle style) {
        return ui::AlertAction::with(title, style,
                                     ui::AlertAction::Handler::from([this](ui::AlertAction chosen) {
                                         order_ += chosen.title().utf8();
                                         order_ += root_.presentedViewController() ? " early" : "";
                                     }));
    }
    void tapTitled(ui::View in, ns::String title) {
        window_.layoutIfNeeded();
        for (const ui::View view : in.subviews()) {
            if (title.isEqual(view.accessibilityLabel())) {
                const CGRect rect = view.convertRect(view.bounds(), nullptr);
                tap({rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2});
                settle();
                return;
            }
            tapTitled(view, title);
        }
    }

    objc::Strong<NotedControllerKind> root_ = NotedControllerKind::make();
    objc::Strong<NotedControllerKind> other_ = NotedControllerKind::make();
    std::string order_;
};

TEST_F(Presenting, AControllerAppearsAndDisappears) {
    EXPECT_EQ(take(root_), "Aa");
    root_.present(other_, true, noting("presented "));
    EXPECT_EQ(root_.presentedViewController(), other_);
    EXPECT_EQ(other_.presentingViewController(), root_);
    EXPECT_EQ(take(other_), "") << "not before the caller is done";
    settle();
    EXPECT_EQ(take(other_), "Aa");
    EXPECT_EQ(take(root_), "") << "a sheet leaves what it covers";
    finish();
    other_.dismiss(true, noting("dismissed"));
    EXPECT_FALSE(root_.presentedViewController());
    settle();
    EXPECT_EQ(take(other_), "Dd");
    EXPECT_EQ(order_, "presented dismissed");
    finish();
    EXPECT_FALSE(other_.view().window());
    EXPECT_EQ(take(other_), "");
}

TEST_F(Presenting, AFullScreenTakesWhatItCoversOutOfTheWindow) {
    take(root_);
    other_.setModalPresentationStyle(ui::ModalPresentation::fullScreen);
    root_.present(other_, false);
    settle();
    EXPECT_EQ(take(root_), "Dd");
    EXPECT_FALSE(root_.view().window());
    EXPECT_EQ(other_.view().frame(), window_.bounds());
    other_.dismiss(false);
    settle();
    EXPECT_EQ(take(root_), "Aa");
    EXPECT_EQ(root_.view().window(), window_);
    other_.setModalPresentationStyle(ui::ModalPresentation::overFullScreen);
    root_.present(other_, false);
    settle();
    EXPECT_EQ(take(root_), "");
}

TEST_F(Presenting, BadPresentationsAreRefused) {
    EXPECT_ANY_THROW(root_.present(nullptr, false));
    EXPECT_ANY_THROW(root_.present(root_, false));
    root_.present(other_, false);
    EXPECT_ANY_THROW(root_.present(other_, false));
    const auto third = ui::ViewController::make();
    root_.present(third, false, noting("never"));
    EXPECT_EQ(root_.presentedViewController(), other_);
    ui::ViewController::make().present(third, false, noting("never"));
    settle();
    EXPECT_FALSE(third.presentingViewController());
    EXPECT_EQ(order_, "");
    other_.present(third, false);
    settle();
    root_.dismiss(false);
    EXPECT_FALSE(other_.presentedViewController()) << "what it presents goes first";
    root_.dismiss(false, noting("nothing to do"));
    settle();
    EXPECT_EQ(order_, "nothing to do");
}

TEST_F(Presenting, ADismissalOvertakesAPresentation) {
    root_.present(other_, true, noting("never"));
    root_.dismiss(true);
    settle();
    EXPECT_EQ(order_, "");
    EXPECT_FALSE(other_.view().window());
    root_.present(other_, true);
    settle();
    EXPECT_EQ(other_.view().window(), window_);
}

TEST_F(Presenting, APresenterThatDiesTakesWhatItPresentsAlong) {
    {
        const objc::Pool pool;
        const auto mortal = ui::ViewController::make();
        window_.setRootViewController(mortal);
        mortal.present(other_, false);
        settle();
        EXPECT_EQ(other_.view().window(), window_);
        window_.setRootViewController(nullptr);
    }
    finish();
    EXPECT_FALSE(other_.presentingViewController());
    EXPECT_FALSE(other_.view().window());
}

TEST_F(Presenting, AnAlertIsGoneBeforeItsActionIsPerformed) {
    const auto alert = ui::AlertController::with(u"Title"_ns, u"Text"_ns, ui::AlertStyle::alert);
    alert.addAction(action(u"No"_ns, ui::AlertActionStyle::cancel));
    alert.addAction(action(u"Yes"_ns, ui::AlertActionStyle::default_));
    root_.present(alert, true);
    settle();
    EXPECT_NEAR(alert.view().center().x, 195, 0.01);
    tap({10, 10});
    settle();
    EXPECT_EQ(root_.presentedViewController(), alert) << "a tap beside an alert does nothing";
    tapTitled(alert.view(), u"Yes"_ns);
    EXPECT_EQ(order_, "Yes");
}

TEST_F(Presenting, AnActionMayPresentTheNextAlert) {
    const auto next = ui::AlertController::with(u"Next"_ns, nullptr, ui::AlertStyle::alert);
    const auto alert = ui::AlertController::with(u"Title"_ns, nullptr, ui::AlertStyle::alert);
    alert.addAction(ui::AlertAction::with(
        u"Go"_ns, ui::AlertActionStyle::default_,
        ui::AlertAction::Handler::from([&](ui::AlertAction) { root_.present(next, true); })));
    root_.present(alert, true);
    settle();
    tapTitled(alert.view(), u"Go"_ns);
    EXPECT_EQ(root_.presentedViewController(), next);
}

TEST_F(Presenting, ASheetIsCancelledBesideIt) {
    const auto sheet = ui::AlertController::with(nullptr, nullptr, ui::AlertStyle::actionSheet);
    EXPECT_ANY_THROW(root_.present(sheet, false)) << "it shows nothing";
    EXPECT_ANY_THROW(sheet.addTextField({}));
    EXPECT_ANY_THROW(sheet.addAction(nullptr));
    const auto disabled = action(u"Off"_ns, ui::AlertActionStyle::destructive);
    sheet.addAction(disabled);
    sheet.addAction(action(u"Cancel"_ns, ui::AlertActionStyle::cancel));
    EXPECT_ANY_THROW(sheet.addAction(action(u"Again"_ns, ui::AlertActionStyle::cancel)));
    root_.present(sheet, false);
    settle();
    disabled.setEnabled(false);
    tapTitled(sheet.view(), u"Off"_ns);
    EXPECT_EQ(order_, "");
    tap({195, 100});
    settle();
    EXPECT_EQ(order_, "Cancel");
}

TEST_F(Presenting, APopoverOnAPhoneIsASheetUnlessItsDelegateObjects) {
    other_.setModalPresentationStyle(ui::ModalPresentation::popover);
    other_.setPreferredContentSize({140, 300});
    const auto source = ui::View::withFrame({{100, 100}, {80, 30}});
    root_.view().addSubview(source);
    root_.present(other_, false);
    other_.popoverPresentationController().setSourceView(
        source); // in time: it comes up in the next turn
    settle();
    EXPECT_EQ(other_.view().bounds().size.width, 390);
    root_.dismiss(false);
    settle();
    struct StayKind : objc::Kind<StayKind, "WTTestPopoverDelegate"> {};
    class Stay : public objc::Peer<Stay, StayKind, objc::Boundary::propagates> {
    public:
        static constexpr auto methods() {
            return std::array{objc::method<"adaptivePresentationStyleForPresentationController:",
                                           &Stay::style>()};
        }
        ui::ModalPresentation style(objc::Object) { return ui::ModalPresentation::none; }
    };
    Stay::registerClass();
    const auto delegate = StayKind::make();
    other_.popoverPresentationController().setDelegate(delegate);
    root_.present(other_, false);
    settle();
    EXPECT_EQ(other_.view().bounds().size, (CGSize{140, 300}));
    const CGRect place = other_.view().convertRect(other_.view().bounds(), nullptr);
    EXPECT_EQ(place.origin, (CGPoint{70, 143}));
    tap({195, 700});
    settle();
    EXPECT_FALSE(root_.presentedViewController());
}

TEST_F(Presenting, ANavigationControllerShowsTheTopOfItsStack) {
    const auto first = NotedControllerKind::make();
    first.setTitle(u"First"_ns);
    const auto navigation = ui::NavigationController::withRoot(first);
    root_.present(navigation, false);
    settle();
    EXPECT_EQ(take(first), "Aa");
    EXPECT_EQ(first.view().safeAreaInsets().top, 44) << "below the bar";
    navigation.push(other_, true);
    EXPECT_ANY_THROW(navigation.push(other_, true));
    EXPECT_ANY_THROW(navigation.push(nullptr, true));
    settle();
    EXPECT_EQ(take(first), "Dd");
    EXPECT_EQ(take(other_), "Aa");
    EXPECT_EQ(other_.navigationController(), navigation);
    other_.present(ui::ViewController::make(), false);
    EXPECT_TRUE(navigation.presentedViewController()) << "the outermost one presents";
    navigation.dismiss(false);
    settle();
    finish();
    window_.layoutIfNeeded();
    const CGRect bar = navigation.navigationBar().convertRect({{0, 0}, {60, 44}}, nullptr);
    tap({bar.origin.x + 30, bar.origin.y + 22}); // the back button
    settle();
    EXPECT_EQ(navigation.topViewController(), first);
    EXPECT_EQ(take(first), "Aa");
    EXPECT_EQ(take(other_), "Dd");
    EXPECT_FALSE(navigation.pop(true)) << "the root stays";
}

TEST_F(Presenting, AContainedControllerFollowsItsView) {
    root_.addChild(other_);
    EXPECT_EQ(other_.parent(), root_);
    root_.view().addSubview(other_.view());
    settle();
    EXPECT_EQ(take(other_), "Aa");
    other_.addChild(root_);
    EXPECT_FALSE(root_.parent()) << "a tree has no cycles";
    window_.setRootViewController(nullptr);
    settle();
    EXPECT_EQ(take(other_), "Dd");
    other_.removeFromParent();
    EXPECT_FALSE(other_.parent());
}

TEST_F(Presenting, WhatLeavesARimOfTheRestIsElevated) {
    using Style = ui::ModalPresentation;
    using Level = ui::InterfaceLevel;
    const auto levelIn = [&](Style style) {
        other_.setModalPresentationStyle(style);
        root_.present(other_, false);
        settle();
        const Level level = other_.traitCollection().userInterfaceLevel();
        other_.dismiss(false);
        settle();
        return level;
    };
    EXPECT_EQ(root_.traitCollection().userInterfaceLevel(), Level::base);
    EXPECT_EQ(levelIn(Style::pageSheet), Level::elevated);
    EXPECT_EQ(levelIn(Style::fullScreen), Level::base);
    EXPECT_EQ(levelIn(Style::overFullScreen), Level::base);
}

} // namespace
