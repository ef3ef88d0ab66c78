// Traits: the rules, and how they come to views, controllers and colours.
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/quartzcore/layer.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/view_controller.hpp"
#include "desktop/class.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/views/view.hpp"

#include <cmath>

namespace {

using desktop::Colour;
using desktop::Traits;
using desktop::uikit::Appearance;
using ui::InterfaceStyle;
using ui::SizeClass;

struct WitnessKind : objc::Kind<WitnessKind, "TraitWitness", ui::View> {
    using Kind::Kind;
};

/// Counts what it is told, and looks at the current traits.
class Witness : public desktop::PlatformClass<Witness, WitnessKind> {
public:
    static auto methods() {
        return std::array{
            objc::method<"traitCollectionDidChange:", &Witness::changed>(),
            objc::method<"layoutSubviews", &Witness::layOut>(),
        };
    }
    static WitnessKind make() {
        static const Class once = registerClass();
        static_cast<void>(once);
        return WitnessKind::make<"initWithFrame:">(CGRect{{}, {10, 10}});
    }

    int changes = 0;
    InterfaceStyle former = InterfaceStyle::unspecified;
    InterfaceStyle atLayout = InterfaceStyle::unspecified;

private:
    void changed(ui::TraitCollection before) {
        ++changes;
        former = before.userInterfaceStyle();
    }
    void layOut() { atLayout = ui::TraitCollection::current().userInterfaceStyle(); }
};

struct WitnessControllerKind
    : objc::Kind<WitnessControllerKind, "TraitWitnessController", ui::ViewController> {
    using Kind::Kind;
};

class WitnessController : public desktop::PlatformClass<WitnessController, WitnessControllerKind> {
public:
    static auto methods() {
        return std::array{objc::method<"traitCollectionDidChange:", &WitnessController::changed>()};
    }
    static WitnessControllerKind make() {
        static const Class once = registerClass();
        static_cast<void>(once);
        return WitnessControllerKind::make();
    }

    int changes = 0;

private:
    void changed(ui::TraitCollection) { ++changes; }
};

class TraitsTest : public tests::UIKitTest {
protected:
    void SetUp() override { window_.setHidden(false); }
    void TearDown() override { desktop::uikit::setAppearance(Appearance::light); }

    static InterfaceStyle styleOf(ui::View view) {
        return view.traitCollection().userInterfaceStyle();
    }
    static Colour valueOf(CGColorRef color) {
        return desktop::Color::valueOf(objc::wrap<ui::Color>(reinterpret_cast<id>(color)));
    }
    static Colour shown(ui::View view) {
        return valueOf(view.layer().send<"backgroundColor", CGColorRef>());
    }
    void makeDark() { desktop::uikit::setAppearance(Appearance::dark); }

    objc::Strong<ui::Window> window_ = ui::Window::withFrame({{}, {390, 844}});
};

constexpr Colour black{0, 0, 0, 1};
constexpr Colour white{1, 1, 1, 1};

TEST(TraitRules, RoomFollowsTheWayThePhoneIsHeld) {
    const auto classes = [](double width, double height) {
        const Traits traits = desktop::phoneTraits({width, height}, 3, InterfaceStyle::light);
        return std::pair{traits.horizontal, traits.vertical};
    };
    EXPECT_EQ(classes(390, 844), (std::pair{SizeClass::compact, SizeClass::regular}));
    EXPECT_EQ(classes(844, 390), (std::pair{SizeClass::compact, SizeClass::compact}));
    EXPECT_EQ(classes(428, 926), (std::pair{SizeClass::compact, SizeClass::regular}));
    EXPECT_EQ(classes(926, 428), (std::pair{SizeClass::regular, SizeClass::compact}));
}

TEST(TraitRules, WhatIsNotToldStays) {
    const Traits phone = desktop::phoneTraits({390, 844}, 3, InterfaceStyle::light);
    const Traits dark = merged(phone, {.style = InterfaceStyle::dark});
    EXPECT_EQ(dark.style, InterfaceStyle::dark);
    EXPECT_EQ(dark.vertical, SizeClass::regular);
    EXPECT_EQ(merged(phone, {}), phone);
}

TEST_F(TraitsTest, AViewIsToldOfTheFormerTraitsWhenTheyChangeAndOnlyThen) {
    const auto view = Witness::make();
    window_.addSubview(view);
    EXPECT_EQ(Witness::of(view).changes, 0);
    makeDark();
    makeDark();
    EXPECT_EQ(Witness::of(view).changes, 1);
    EXPECT_EQ(Witness::of(view).former, InterfaceStyle::light);
    EXPECT_EQ(styleOf(view), InterfaceStyle::dark);
}

TEST_F(TraitsTest, AViewThatWasAwayLearnsOfTheChangeWhenItComesBack) {
    const auto view = Witness::make();
    makeDark();
    EXPECT_EQ(styleOf(view), InterfaceStyle::light);
    window_.addSubview(view);
    EXPECT_EQ(styleOf(view), InterfaceStyle::dark);
    EXPECT_EQ(Witness::of(view).changes, 1);
}

TEST_F(TraitsTest, AnOverrideHoldsForTheViewAndWhatIsInIt) {
    const auto outer = ui::View::withFrame({});
    const auto inner = Witness::make();
    outer.addSubview(inner);
    window_.addSubview(outer);
    outer.setOverrideUserInterfaceStyle(InterfaceStyle::dark);
    EXPECT_EQ(styleOf(inner), InterfaceStyle::dark);
    EXPECT_EQ(styleOf(window_), InterfaceStyle::light);
    makeDark();
    EXPECT_EQ(Witness::of(inner).changes, 1) << "nothing has changed for it";
    outer.setOverrideUserInterfaceStyle(InterfaceStyle::light);
    EXPECT_EQ(styleOf(inner), InterfaceStyle::light);
    outer.setOverrideUserInterfaceStyle(InterfaceStyle::unspecified);
    EXPECT_EQ(styleOf(inner), InterfaceStyle::dark);
}

TEST_F(TraitsTest, AWindowsOverrideStandsAgainstThePhone) {
    const auto view = Witness::make();
    window_.addSubview(view);
    window_.setOverrideUserInterfaceStyle(InterfaceStyle::light);
    makeDark();
    EXPECT_EQ(styleOf(view), InterfaceStyle::light);
    EXPECT_EQ(Witness::of(view).changes, 0);
}

TEST_F(TraitsTest, AControllersOverrideHoldsForItsViewAndItsChildren) {
    const auto parent = WitnessController::make();
    const auto child = WitnessController::make();
    parent.addChild(child);
    parent.view().addSubview(child.view());
    window_.setRootViewController(parent);
    parent.setOverrideUserInterfaceStyle(InterfaceStyle::dark);
    EXPECT_EQ(parent.traitCollection().userInterfaceStyle(), InterfaceStyle::dark);
    EXPECT_EQ(child.traitCollection().userInterfaceStyle(), InterfaceStyle::dark);
    EXPECT_EQ(styleOf(child.view()), InterfaceStyle::dark);
    EXPECT_EQ(WitnessController::of(child).changes, 1);
    EXPECT_EQ(parent.view().overrideUserInterfaceStyle(), InterfaceStyle::unspecified);
}

TEST_F(TraitsTest, LayoutSeesTheTraitsOfItsView) {
    const auto view = Witness::make();
    window_.addSubview(view);
    view.setOverrideUserInterfaceStyle(InterfaceStyle::dark);
    window_.layoutIfNeeded();
    EXPECT_EQ(Witness::of(view).atLayout, InterfaceStyle::dark);
    EXPECT_EQ(ui::TraitCollection::current().userInterfaceStyle(), InterfaceStyle::light);
}

TEST_F(TraitsTest, ABackgroundAdaptsAndTheLayersColourIsAFixedOne) {
    const auto view = ui::View::withFrame({{}, {10, 10}});
    window_.addSubview(view);
    view.setBackgroundColor(ui::Color::systemBackground());
    view.layer().setBorderColor(ui::Color::label().cgColor());
    EXPECT_EQ(shown(view), white);
    makeDark();
    EXPECT_EQ(shown(view), black);
    EXPECT_TRUE((view.backgroundColor().send<"isEqual:", bool>(ui::Color::systemBackground())));
    const Colour border = valueOf(view.layer().send<"borderColor", CGColorRef>());
    EXPECT_EQ(border, black) << "a CGColor stays what it was";
}

TEST_F(TraitsTest, ABackgroundOfTheLayersOwnStays) {
    const auto view = ui::View::withFrame({{}, {10, 10}});
    window_.addSubview(view);
    view.setBackgroundColor(ui::Color::systemBackground());
    view.setBackgroundColor(ui::Color::white());
    makeDark();
    EXPECT_EQ(shown(view), white);
}

TEST_F(TraitsTest, AProviderIsAskedWithTheTraits) {
    const auto color = ui::Color::dynamic(ui::Color::Provider::from([](ui::TraitCollection traits) {
        return traits.userInterfaceStyle() == InterfaceStyle::dark ? ui::Color::green()
                                                                   : ui::Color::red();
    }));
    const auto dark = ui::TraitCollection::with(InterfaceStyle::dark);
    const auto valueOf = [](ui::Color one) { return desktop::Color::valueOf(one); };
    EXPECT_EQ(valueOf(color), (Colour{1, 0, 0, 1}));
    EXPECT_EQ(valueOf(color.resolvedWith(dark)), (Colour{0, 1, 0, 1}));
    EXPECT_EQ(valueOf(color.withAlphaComponent(0.5).resolvedWith(dark)), (Colour{0, 1, 0, 0.5}));
    makeDark();
    EXPECT_EQ(valueOf(color), (Colour{0, 1, 0, 1}));
}

TEST_F(TraitsTest, TheSystemsColoursAreThoseOfEachAppearance) {
    const auto hex = [](const char* name, InterfaceStyle style) {
        const Colour c = desktop::Color::valueOf(
            ui::Color::named(name).resolvedWith(ui::TraitCollection::with(style)));
        const auto byte = [](double part) {
            return static_cast<unsigned>(std::lround(part * 255));
        };
        return byte(c.red) << 24U | byte(c.green) << 16U | byte(c.blue) << 8U | byte(c.alpha);
    };
    EXPECT_EQ(hex("systemBlueColor", InterfaceStyle::light), 0x007AFFFFU);
    EXPECT_EQ(hex("systemBlueColor", InterfaceStyle::dark), 0x0A84FFFFU);
    EXPECT_EQ(hex("labelColor", InterfaceStyle::dark), 0xFFFFFFFFU);
    EXPECT_EQ(hex("systemGray6Color", InterfaceStyle::dark), 0x1C1C1EFFU);
    EXPECT_EQ(hex("separatorColor", InterfaceStyle::dark), 0x54545899U);
    EXPECT_EQ(hex("blackColor", InterfaceStyle::dark), 0x000000FFU);
    EXPECT_FALSE((ui::Color::label().send<"isEqual:", bool>(ui::Color::black())));
}

TEST_F(TraitsTest, DarkBackgroundsAreLighterWhereTheyAreElevated) {
    using ui::InterfaceLevel;
    const auto view = ui::View::withFrame({{}, {10, 10}});
    window_.addSubview(view);
    view.setBackgroundColor(ui::Color::systemBackground());
    desktop::View::of(view).elevate();
    EXPECT_EQ(shown(view), white);
    makeDark();
    EXPECT_NEAR(shown(view).blue, 0x1E / 255.0, 1e-9);
    EXPECT_EQ(desktop::Color::valueOf(ui::Color::systemBackground()), black) << "of the screen";
    const auto elevated = ui::TraitCollection::with(InterfaceLevel::elevated);
    const Colour faded = desktop::Color::valueOf(
        ui::Color::systemBackground().withAlphaComponent(0.5).resolvedWith(elevated));
    EXPECT_NEAR(faded.red, 0x1C / 255.0, 1e-9);
    EXPECT_EQ(faded.alpha, 0.5);
}

TEST(Traits, EachThatIsToldGoesOverTheFormer) {
    using ui::InterfaceLevel;
    const Traits former{InterfaceStyle::light, SizeClass::compact, SizeClass::regular, 2,
                        InterfaceLevel::elevated};
    const Traits other{InterfaceStyle::dark, SizeClass::regular, SizeClass::compact, 3,
                       InterfaceLevel::base};
    EXPECT_EQ(merged(former, other), other);
    EXPECT_EQ(merged(former, {}), former);
    EXPECT_EQ(merged({}, former), former);
}

TEST_F(TraitsTest, CollectionsCompareAndMerge) {
    const auto dark = ui::TraitCollection::with(InterfaceStyle::dark);
    const auto light = ui::TraitCollection::with(InterfaceStyle::light);
    EXPECT_TRUE((dark.send<"isEqual:", bool>(ui::TraitCollection::with(InterfaceStyle::dark))));
    const auto differs = [&](ui::TraitCollection other) {
        return dark.send<"hasDifferentColorAppearanceComparedToTraitCollection:", bool>(other);
    };
    EXPECT_TRUE(differs(light));
    EXPECT_FALSE(differs(dark));
    makeDark();
    EXPECT_TRUE((window_.traitCollection().send<"containsTraitsInCollection:", bool>(dark)));
    EXPECT_FALSE((window_.traitCollection().send<"containsTraitsInCollection:", bool>(light)));
}

} // namespace
