// Delegates, data sources and targets that are gone while whoever asks them lives on.
#include "tests/desktop/uikit/text_fixture.hpp"

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/collection_view.hpp"
#include "bindings/uikit/collection_view_flow_layout.hpp"
#include "bindings/uikit/navigation_bar.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/picker_view.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/table_view.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"
#include "desktop/uikit/controls/picker_view.hpp"
#include "desktop/uikit/lists/table_view.hpp"

namespace {

using namespace ns::literals;
using objc::Object;
using objc::Strong;
using ui::TableViewCell;

struct ServantKind : objc::Kind<ServantKind, "WTTestServant"> {
    using Kind::Kind;
};

/// Source, delegate and target of everything; counts what it is asked and told.
class Servant : public objc::Peer<Servant, ServantKind, objc::Boundary::propagates> {
public:
    static std::vector<objc::MethodRow> methods() {
        using Self = Servant;
        return {
            objc::method<"tableView:numberOfRowsInSection:", &Self::count>(),
            objc::method<"tableView:cellForRowAtIndexPath:", &Self::row>(),
            objc::method<"tableView:didSelectRowAtIndexPath:", &Self::chosen>(),
            objc::method<"collectionView:numberOfItemsInSection:", &Self::count>(),
            objc::method<"collectionView:cellForItemAtIndexPath:", &Self::item>(),
            objc::method<"numberOfComponentsInPickerView:", &Self::components>(),
            objc::method<"pickerView:numberOfRowsInComponent:", &Self::count>(),
            objc::method<"scrollViewDidScroll:", &Self::told>(),
            objc::method<"textViewDidChange:", &Self::told>(),
            objc::method<"textFieldDidChangeSelection:", &Self::told>(),
            objc::method<"gestureRecognizerShouldBegin:", &Self::asked>(),
            objc::method<"act", &Self::act>(),
        };
    }
    int calls = 0;

private:
    long count(Object, long) { return ++calls, 100; }
    long components(Object) { return ++calls, 1; }
    TableViewCell row(ui::TableView, ns::IndexPath) {
        ++calls;
        return TableViewCell::make<"initWithStyle:reuseIdentifier:">(
            ui::TableViewCellStyle::default_, u"Row"_ns);
    }
    ui::CollectionViewCell item(ui::CollectionView view, ns::IndexPath path) {
        ++calls;
        return view.dequeueReusableCell(u"Cell"_ns, path);
    }
    void chosen(Object, Object) { ++calls; }
    void told(Object) { ++calls; }
    bool asked(Object) { return ++calls > 0; }
    void act() { ++calls; }
};

struct BystanderKind : objc::Kind<BystanderKind, "WTTestBystander", ui::View> {
    using Kind::Kind;
};

/// A view around a control that could act in a dead target's place.
class Bystander : public objc::Peer<Bystander, BystanderKind, objc::Boundary::propagates> {
public:
    static auto methods() { return std::array{objc::method<"act", &Bystander::act>()}; }
    int acts = 0;

private:
    void act() { ++acts; }
};

/// Each test lets the servant serve, and then die.
class Lifetimes : public tests::TextTest {
protected:
    static void SetUpTestSuite() {
        TextTest::SetUpTestSuite();
        Servant::registerClass();
        Bystander::registerClass();
    }
    Lifetimes() {
        const objc::Pool inner;
        servant_ = ServantKind::make();
        known_ = servant_;
    }
    /// What `work` makes the servant do.
    template <class Work>
    int calls(Work work) {
        const objc::Pool inner;
        Servant::of(servant_).calls = 0;
        work();
        return Servant::of(servant_).calls;
    }
    void letServantDie() {
        servant_ = nullptr;
        ASSERT_FALSE(known_) << "somebody keeps it";
    }
    void layOutAndScroll(ui::ScrollView list, double top) {
        const objc::Pool inner;
        list.setContentOffset({0, top});
        list.setNeedsLayout();
        window_.layoutIfNeeded();
    }
    static void drag() {
        const objc::Pool inner;
        down({150, 400});
        for (double y = 390; y > 200; y -= 20) {
            desktop::run_loop::advance(0.02);
            move({150, y});
        }
        up();
        desktop::run_loop::advance(3);
    }
    template <class View>
    void serve(View view) {
        const objc::Pool inner;
        view.template send<"setDataSource:">(servant_.raw());
        view.template send<"setDelegate:">(servant_.raw());
        window_.addSubview(view);
        window_.layoutIfNeeded();
    }

    Strong<ServantKind> servant_;
    objc::Weak<ServantKind> known_;
};

TEST_F(Lifetimes, ATableGoesOnWithoutItsSource) {
    const Strong<ui::TableView> table =
        ui::TableView::make<"initWithFrame:style:">(CGRect{{0, 200}, {300, 440}}, 0L);
    EXPECT_GT(calls([&] { serve(table); }), 0);
    letServantDie();
    EXPECT_FALSE((table.send<"dataSource", Object>()));
    EXPECT_FALSE((table.send<"delegate", Object>()));
    layOutAndScroll(table, 1'000);
    tap({50, 300});
    drag();
    table.send<"reloadData">();
    layOutAndScroll(table, 0);
    EXPECT_EQ((table.send<"numberOfSections", long>()), 0);
}

TEST_F(Lifetimes, ACollectionGoesOnWithoutItsSource) {
    const Strong<ui::CollectionView> view =
        ui::CollectionView::withFrame({{0, 200}, {300, 440}}, ui::CollectionViewFlowLayout::make());
    view.registerClass(ui::CollectionViewCell::classObject(), u"Cell"_ns);
    EXPECT_GT(calls([&] { serve(view); }), 0);
    letServantDie();
    layOutAndScroll(view, 400);
    tap({50, 300});
    drag();
    view.reloadData();
    layOutAndScroll(view, 0);
    EXPECT_EQ((view.send<"numberOfSections", long>()), 0);
}

TEST_F(Lifetimes, APickerTurnsWithoutItsSource) {
    const Strong<ui::PickerView> picker = ui::PickerView::make<"initWithFrame:">(CGRect());
    picker.setCenter({150, 400});
    EXPECT_GT(calls([&] { serve(picker); }), 0);
    letServantDie();
    drag();
    EXPECT_GT((picker.send<"selectedRowInComponent:", long>(0L)), 0);
    picker.send<"reloadAllComponents">();
    window_.layoutIfNeeded();
    EXPECT_EQ((picker.send<"numberOfComponents", long>()), 0);
}

TEST_F(Lifetimes, ScrollViewsScrollWithoutTheirDelegate) {
    const Strong<ui::ScrollView> scroll = ui::ScrollView::withFrame({{0, 200}, {300, 440}});
    scroll.setContentSize({300, 3'000});
    scroll.send<"setDelegate:">(servant_.raw());
    window_.addSubview(scroll);
    EXPECT_GT(calls([] { drag(); }), 0);
    const double top = scroll.contentOffset().y;
    letServantDie();
    drag();
    EXPECT_GT(scroll.contentOffset().y, top);
}

TEST_F(Lifetimes, TextIsTypedWithoutADelegate) {
    for (const Object input : {Object(view_), Object(field_)}) {
        Strong<ServantKind> delegate;
        {
            const objc::Pool inner;
            delegate = ServantKind::make();
            input.send<"setDelegate:">(delegate.raw());
            input.assume<ui::Responder>().becomeFirstResponder();
            input.send<"insertText:">(u"a"_ns);
            EXPECT_GT(Servant::of(delegate).calls, 0);
        }
        delegate = nullptr;
        const objc::Pool inner;
        EXPECT_FALSE((input.send<"delegate", Object>()));
        input.send<"insertText:">(u"b"_ns);
        EXPECT_EQ((input.send<"text", ns::String>().utf8()), "ab");
    }
}

TEST_F(Lifetimes, RecognizersForgetDelegatesAndTargets) {
    const auto touched = touchedView(window_, {{0, 200}, {300, 300}});
    const auto tapping = recognizer<ui::TapGestureRecognizer>(touched);
    tapping.send<"setDelegate:">(servant_.raw());
    tapping.send<"addTarget:action:">(servant_.raw(), objc::selector<"act">());
    EXPECT_EQ(calls([] { tap({50, 300}); }), 2);
    letServantDie();
    desktop::run_loop::advance(1);
    takeStates();
    tap({50, 300});
    EXPECT_EQ(takeStates().size(), 1U) << "the other target still hears of it";
}

TEST_F(Lifetimes, AControlTellsNobodyInPlaceOfADeadTarget) {
    const auto parent = BystanderKind::make<"initWithFrame:">(CGRect{{0, 200}, {300, 300}});
    window_.addSubview(parent);
    const auto button = ui::Button::withType(ui::ButtonType::system);
    button.setFrame({{0, 0}, {100, 50}});
    parent.addSubview(button);
    button.addTarget(servant_, objc::selector<"act">(), ui::ControlEvents::touchUpInside);
    EXPECT_EQ(calls([] { tap({50, 220}); }), 1);
    letServantDie();
    tap({50, 220});
    EXPECT_EQ(Bystander::of(parent).acts, 0);
    button.addTarget(nullptr, objc::selector<"act">(), ui::ControlEvents::touchUpInside);
    tap({50, 220});
    EXPECT_EQ(Bystander::of(parent).acts, 1) << "a target that was never named is looked for";
}

TEST_F(Lifetimes, ANavigationViewIsLaidOutWithoutItsController) {
    Strong<ui::View> view;
    objc::Weak<ui::NavigationController> controller;
    {
        const objc::Pool inner;
        controller = ui::NavigationController::withRoot(ui::ViewController::make());
        view = controller.strong().view();
        window_.addSubview(view);
        window_.layoutIfNeeded();
        desktop::run_loop::advance(1); // the controllers are told of it in the next turn
    }
    EXPECT_FALSE(controller);
    view.setFrame({{0, 0}, {200, 300}});
    window_.layoutIfNeeded();
    EXPECT_EQ(view.frame().size, (CGSize{200, 300}));
}

TEST_F(Lifetimes, ANavigationBarForgetsItemsThatItNoLongerShares) {
    const Strong<ui::NavigationItem> item = ui::NavigationItem::withTitle(u"one"_ns);
    {
        const objc::Pool inner;
        const auto items = ns::MutableArray::make();
        items.add(item);
        ui::NavigationBar::withFrame({{0, 0}, {300, 44}}).setItems(items);
        items.send<"removeAllObjects">();
    }
    item.setTitle(u"two"_ns);
    EXPECT_EQ(item.title().utf8(), "two");
}

TEST_F(Lifetimes, ABarButtonForgetsItsTarget) {
    const Strong<ui::BarButtonItem> item = ui::BarButtonItem::withSystemItem(
        ui::BarButtonSystemItem::done, servant_, objc::selector<"act">());
    EXPECT_EQ(calls([&] { item.send<"pressed">(); }), 1);
    letServantDie();
    EXPECT_FALSE((item.send<"target", Object>()));
    item.send<"pressed">();
}

} // namespace
