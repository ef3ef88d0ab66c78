// Editing in text views and text fields: what delegates are told, selections, composition, storage.
#include "tests/desktop/uikit/text_fixture.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "desktop/foundation/attributed_string.hpp"
#include "desktop/foundation/string.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/keyboard/keyboard_input.hpp"

namespace {

using namespace ns::literals;
namespace keyboard = desktop::keyboard_input;

class TextEditing : public tests::TextTest {
protected:
    static void SetUpTestSuite() {
        TextTest::SetUpTestSuite();
        desktop::foundation::installStrings();
        desktop::foundation::installAttributedStrings();
    }
    ui::TextInput input() { return ui::TextInput(view_); }
    std::string shown() { return view_.text().utf8(); }
    ns::Range selected() { return view_.selectedRange(); }
};

TEST_F(TextEditing, ATextViewTellsItsDelegateInOrder) {
    view_.setText(u"ab"_ns);
    view_.setDelegate(textLog_);
    EXPECT_TRUE(view_.becomeFirstResponder());
    EXPECT_EQ(takeSeen(), "shouldBegin didBegin");
    EXPECT_TRUE(keyboard::typeText(u"c"_ns));
    EXPECT_EQ(takeSeen(), "mayChange(2,0,c) didSelect didChange");
    EXPECT_TRUE(keyboard::erase());
    EXPECT_EQ(takeSeen(), "mayChange(2,1,) didSelect didChange");
    keyboard::pressReturn();
    EXPECT_EQ(takeSeen(), "mayChange(2,0,\n) didSelect didChange");
    text().refused = "mayChange";
    keyboard::typeText(u"x"_ns);
    keyboard::erase();
    EXPECT_EQ(takeSeen(), "mayChange(3,0,x) mayChange(2,1,)");
    EXPECT_EQ(shown(), "ab\n");
    text().refused = "shouldEnd";
    EXPECT_FALSE(view_.resignFirstResponder());
    EXPECT_TRUE(view_.isFirstResponder());
    text().refused = "";
    takeSeen();
    EXPECT_TRUE(view_.resignFirstResponder());
    EXPECT_EQ(takeSeen(), "shouldEnd didEnd");
    EXPECT_FALSE(keyboard::typeText(u"x"_ns));
}

TEST_F(TextEditing, WhatTheApplicationWritesAsksNobody) {
    view_.setDelegate(textLog_);
    view_.setText(u"one"_ns);
    EXPECT_EQ(takeSeen(), "didSelect");
    input().insertText(u"!"_ns);
    EXPECT_EQ(takeSeen(), "didSelect didChange");
    view_.setSelectedRange({0, 3});
    input().replace(input().selectedTextRange(), u"two"_ns);
    EXPECT_EQ(shown(), "two!");
    EXPECT_EQ(selected(), (ns::Range{3, 0}));
}

TEST_F(TextEditing, AFieldTellsItsDelegateAndItsTargets) {
    field_.setDelegate(textLog_);
    field_.addTarget(textLog_, objc::selector<"editingChanged">(),
                     ui::ControlEvents::editingChanged);
    field_.addTarget(textLog_, objc::selector<"editingDidEndOnExit">(),
                     ui::ControlEvents::editingDidEndOnExit);
    field_.becomeFirstResponder();
    EXPECT_EQ(takeSeen(), "shouldBegin didBegin");
    keyboard::typeText(u"a\nb"_ns);
    EXPECT_EQ(takeSeen(), "mayChange(0,0,a) didSelect [changed] shouldReturn [exit] "
                          "mayChange(1,0,b) didSelect [changed]");
    EXPECT_EQ(field_.text().utf8(), "ab");
    text().refused = "shouldReturn";
    keyboard::pressReturn();
    EXPECT_EQ(takeSeen(), "shouldReturn");
    ui::Pasteboard::generalPasteboard().setString(u"x\ny"_ns);
    field_.send<"paste:">(objc::Object());
    EXPECT_EQ(field_.text().utf8(), "abx y");
}

TEST_F(TextEditing, AFieldMayBeClearedAsEditingBegins) {
    for (const bool clears : {false, true}) {
        field_.setText(u"former"_ns);
        field_.send<"setClearsOnBeginEditing:">(objc::Boolean(clears));
        EXPECT_TRUE(field_.becomeFirstResponder());
        EXPECT_EQ(field_.text().utf8(), clears ? "" : "former");
        EXPECT_TRUE(field_.resignFirstResponder());
    }
}

TEST_F(TextEditing, TypingAttributesHoldUntilTheCaretMoves) {
    view_.setText(u"ab"_ns);
    const auto typing = [this] {
        return view_.send<"typingAttributes", ns::Dictionary>().get(
            ui::attributes::foregroundColor());
    };
    const auto attributes = ns::MutableDictionary::make();
    attributes.set(ui::Color::red(), ui::attributes::foregroundColor());
    view_.send<"setTypingAttributes:">(attributes);
    EXPECT_TRUE(typing().isEqual(ui::Color::red()));
    view_.setSelectedRange({1, 0});
    EXPECT_FALSE(typing().isEqual(ui::Color::red())) << "those of the text around it";
}

TEST_F(TextEditing, TheFocusPassesFromOneToTheOther) {
    field_.setDelegate(textLog_);
    view_.becomeFirstResponder();
    text().refused = "shouldBegin";
    EXPECT_FALSE(field_.becomeFirstResponder());
    EXPECT_TRUE(view_.isFirstResponder());
    text().refused = "";
    EXPECT_TRUE(field_.becomeFirstResponder());
    EXPECT_FALSE(view_.isFirstResponder());
    takeSeen();
    field_.removeFromSuperview();
    EXPECT_EQ(takeSeen(), "didEnd");
    EXPECT_FALSE(desktop::first_responder::current());
    EXPECT_FALSE(field_.becomeFirstResponder()) << "out of any window";
    {
        const objc::Pool pool;
        const auto other = ui::TextView::withFrame({{0, 0}, {50, 50}});
        window_.addSubview(other);
        other.becomeFirstResponder();
        other.removeFromSuperview();
    }
    EXPECT_FALSE(desktop::first_responder::current());
}

TEST_F(TextEditing, CharactersAreDeletedAsAWhole) {
    view_.becomeFirstResponder();
    for (const char16_t* character : {u"😀", u"👨‍👩‍👧", u"🇨🇳", u"e\u0301", u"你"}) {
        view_.setText(ns::String::from(std::u16string(u"a") + character));
        keyboard::erase();
        EXPECT_EQ(shown(), "a");
    }
    const std::u16string lone{u'a', char16_t{0xD83D}};
    view_.setText(u"a😀"_ns.send<"substringWithRange:", ns::String>(ns::Range{0, 2}));
    EXPECT_EQ(view_.text().utf16(), lone);
    keyboard::typeText(u"b"_ns);
    EXPECT_EQ(view_.text().utf16(), lone + u"b");
    keyboard::erase();
    keyboard::erase();
    EXPECT_EQ(shown(), "a");
    keyboard::undo();
    EXPECT_EQ(view_.text().utf16(), lone);
}

TEST_F(TextEditing, WordsAreComposed) {
    view_.becomeFirstResponder();
    view_.setText(u"ab"_ns);
    view_.setSelectedRange({1, 0});
    keyboard::setMarkedText(u"n"_ns, {1, 0});
    keyboard::setMarkedText(u"ni"_ns, {2, 0});
    EXPECT_EQ(shown(), "anib");
    EXPECT_EQ(input().textIn(view_.send<"markedTextRange", ui::TextRange>()).utf8(), "ni");
    keyboard::erase();
    EXPECT_EQ(shown(), "anb");
    EXPECT_EQ(input().textIn(view_.send<"markedTextRange", ui::TextRange>()).utf8(), "n");
    keyboard::typeText(u"你"_ns);
    EXPECT_EQ(shown(), "a你b");
    EXPECT_EQ(selected(), (ns::Range{2, 0}));
    EXPECT_FALSE((view_.send<"markedTextRange", ui::TextRange>()));
    keyboard::setMarkedText(u"hao"_ns, {99, 99});
    keyboard::unmarkText();
    EXPECT_EQ(shown(), "a你haob");
    keyboard::setMarkedText(u"x"_ns, {1, 0});
    keyboard::setMarkedText(u""_ns, {0, 0});
    EXPECT_EQ(shown(), "a你haob");
}

TEST_F(TextEditing, TheStorageIsTheText) {
    view_.setText(u"Hello"_ns);
    view_.setSelectedRange({5, 0});
    const auto storage = view_.textStorage();
    storage.replace(ns::Range{0, 5}, u"Hi"_ns);
    EXPECT_EQ(shown(), "Hi");
    EXPECT_EQ(selected(), (ns::Range{2, 0}));
    storage.addAttribute(ui::attributes::foregroundColor(), ui::Color::systemBlue(), {0, 1});
    const auto colorAt = [this](unsigned long unit) {
        return view_.attributedText().attributesAt(unit).get(ui::attributes::foregroundColor());
    };
    EXPECT_TRUE(colorAt(0).isEqual(ui::Color::systemBlue()));
    EXPECT_TRUE(colorAt(1).isEqual(ui::Color::label()));
    view_.setSelectedRange({1, 0});
    input().insertText(u"x"_ns);
    EXPECT_TRUE(colorAt(1).isEqual(ui::Color::systemBlue())) << "as the text before it";
    EXPECT_ANY_THROW(storage.replace(ns::Range{9, 5}, u"x"_ns));
    EXPECT_EQ(shown(), "Hxi");
}

TEST_F(TextEditing, PositionsCountAndMove) {
    view_.setText(u"a😀b\nline"_ns);
    const auto start = input().beginningOfDocument();
    const auto at = [&](long offset) {
        return view_.send<"positionFromPosition:offset:", ui::TextPosition>(start, offset);
    };
    const auto moved = [&](long from, long direction, long steps) {
        return input().offset(
            start, view_.send<"positionFromPosition:inDirection:offset:", ui::TextPosition>(
                       at(from), direction, steps));
    };
    EXPECT_EQ(input().offset(start, input().endOfDocument()), 9);
    EXPECT_FALSE(at(10));
    EXPECT_FALSE(at(-1));
    constexpr long right = 2;
    constexpr long left = 3;
    constexpr long up = 4;
    constexpr long down = 5;
    EXPECT_EQ(moved(1, right, 1), 3);
    EXPECT_EQ(moved(3, left, 1), 1);
    EXPECT_EQ(moved(1, left, -1), 3);
    EXPECT_EQ(moved(0, down, 1), 5);
    EXPECT_EQ(moved(5, up, 1), 0);
    EXPECT_EQ(moved(5, down, 7), 9);
    EXPECT_EQ((view_.send<"comparePosition:toPosition:", long>(at(1), at(3))), -1);
    EXPECT_EQ(input().textIn(input().range(at(4), at(1))).utf8(), "😀b");
    const CGRect caret = input().caretRect(at(5));
    EXPECT_NEAR(caret.origin.x, 5, 0.1);
    EXPECT_GT(caret.origin.y, 8 + 15);
    EXPECT_TRUE((view_.send<"closestPositionToPoint:", ui::TextPosition>(
                     CGPoint{caret.origin.x, caret.origin.y + 5}))
                    .isEqual(at(5)));
}

TEST_F(TextEditing, ActionsAreOfferedWhereTheyMakeSense) {
    const auto can = [this](SEL action) { return view_.canPerformAction(action, nullptr); };
    const SEL cut = objc::selector<"cut:">();
    const SEL paste = objc::selector<"paste:">();
    const SEL select = objc::selector<"select:">();
    const SEL selectAll = objc::selector<"selectAll:">();
    ui::Pasteboard::generalPasteboard().setString(nullptr);
    EXPECT_FALSE(can(cut) || can(paste) || can(select) || can(selectAll));
    view_.setText(u"some words"_ns);
    EXPECT_TRUE(!can(cut) && can(select) && can(selectAll));
    view_.send<"select:">(objc::Object());
    EXPECT_EQ(selected(), (ns::Range{5, 5}));
    EXPECT_TRUE(can(cut) && !can(select) && can(selectAll));
    view_.send<"cut:">(objc::Object());
    EXPECT_EQ(shown(), "some ");
    EXPECT_TRUE(can(paste));
    view_.send<"paste:">(objc::Object());
    EXPECT_EQ(shown(), "some words");
    view_.send<"selectAll:">(objc::Object());
    view_.setEditable(false);
    EXPECT_FALSE(can(cut) || can(paste) || can(selectAll));
    EXPECT_TRUE(can(objc::selector<"copy:">()));
    field_.setText(u"secret"_ns);
    field_.setSecureTextEntry(true);
    field_.send<"selectAll:">(objc::Object());
    EXPECT_FALSE(field_.canPerformAction(objc::selector<"copy:">(), nullptr));
}

TEST_F(TextEditing, TheCaretIsKeptInSight) {
    view_.becomeFirstResponder();
    for (int line = 0; line < 20; ++line) {
        keyboard::typeText(u"line\n"_ns);
    }
    view_.layoutIfNeeded();
    const double bottom = view_.contentSize().height - 100;
    EXPECT_NEAR(view_.contentOffset().y, bottom, 1);
    view_.scrollRangeToVisible({0, 0});
    EXPECT_EQ(view_.contentOffset().y, 0);
    view_.scrollRangeToVisible({view_.text().length(), 0});
    EXPECT_NEAR(view_.contentOffset().y, bottom, 1);
}

TEST_F(TextEditing, DelegatesMayDoAnything) {
    view_.setDelegate(textLog_);
    view_.becomeFirstResponder();
    text().then = [this](const std::string& word) {
        if (word == "didChange") {
            text().then = nullptr;
            view_.setText(u""_ns);
        }
    };
    keyboard::typeText(u"abc"_ns);
    EXPECT_EQ(shown(), "bc");
    text().then = [this](const std::string& word) {
        if (word.starts_with("mayChange")) {
            view_.removeFromSuperview();
            view_.setText(nullptr);
        }
    };
    keyboard::typeText(u"def"_ns);
    EXPECT_FALSE(view_.isFirstResponder());
    text().then = nullptr;
    window_.addSubview(view_);
    text().then = [this](const std::string& word) {
        if (word == "didBegin") {
            view_.removeFromSuperview();
        }
    };
    view_.becomeFirstResponder();
    EXPECT_FALSE(view_.isFirstResponder());
}

TEST_F(TextEditing, HostileInputIsSurvived) {
    view_.setSelectedRange({~0UL, ~0UL});
    view_.setSelectedRange({5, ~0UL});
    input().replace(nullptr, nullptr);
    input().setSelectedTextRange(nullptr);
    EXPECT_EQ(input().textIn(nullptr).length(), 0U);
    view_.send<"closestPositionToPoint:", ui::TextPosition>(CGPoint{std::nan(""), 1e300});
    view_.setTextContainerInset({1e300, 1e300, 1e300, 1e300});
    view_.setText(u"text"_ns);
    view_.layoutIfNeeded();
    EXPECT_GE(view_.sizeThatFits({std::nan(""), -1}).height, 0);
    view_.setAttributedText(nullptr);
    EXPECT_EQ(shown(), "");
    view_.setText(ns::String::from(std::u16string(1000000, u'x')));
    view_.becomeFirstResponder();
    keyboard::typeText(u"y"_ns);
    EXPECT_EQ(view_.text().length(), 1000001U);
    field_.setText(view_.text());
    field_.layoutIfNeeded();
}

} // namespace
