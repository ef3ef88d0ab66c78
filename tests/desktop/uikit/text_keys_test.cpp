// Keys that move, select and erase, and taking back what was done.
#include "tests/desktop/uikit/text_fixture.hpp"

#include "bindings/foundation/undo_manager.hpp"
#include "bindings/uikit/menu_controller.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "desktop/uikit/keyboard/keyboard_input.hpp"

namespace {

using namespace ns::literals;
using desktop::TextMovement;
namespace keyboard = desktop::keyboard_input;

class TextKeys : public tests::TextTest {
protected:
    TextKeys() { view_.becomeFirstResponder(); }

    /// The text and where the selection stands: "one [two] three", "one| two".
    std::string shown() {
        std::u16string text = view_.text().utf16();
        const ns::Range range = view_.selectedRange();
        text.insert(range.location + range.length, range.length > 0 ? u"]" : u"|");
        text.insert(range.location, range.length > 0 ? u"[" : u"");
        return ns::String::from(text.c_str()).utf8();
    }
    void setText(std::string_view text) {
        const std::size_t caret = text.find('|');
        std::string plain(text);
        plain.erase(caret, 1);
        view_.setText(ns::String::fromUtf8(plain));
        const auto before = ns::String::fromUtf8(std::string(text.substr(0, caret)));
        view_.setSelectedRange({before.length(), 0});
    }
    std::string after(const std::vector<TextMovement>& movements, bool extends = false) {
        for (const TextMovement movement : movements) {
            EXPECT_TRUE(keyboard::move(movement, extends));
        }
        return shown();
    }
};

TEST_F(TextKeys, MoveTheCaret) {
    using enum TextMovement;
    struct Case {
        const char* text;
        std::vector<TextMovement> movements;
        const char* expected;
    };
    for (const auto& [text, movements, expected] : std::vector<Case>{
             {"a😀|b", {left}, "a|😀b"},
             {"a|😀b", {right}, "a😀|b"},
             {"|ab", {left}, "|ab"},
             {"ab|", {right}, "ab|"},
             {"two words|", {wordLeft}, "two |words"},
             {"two words|", {wordLeft, wordLeft}, "|two words"},
             {"|two, words", {wordRight}, "two|, words"},
             {"|two, words", {wordRight, wordRight, wordRight}, "two, words|"},
             {"one\ntw|o\nthree", {lineStart}, "one\n|two\nthree"},
             {"one\ntw|o\nthree", {lineEnd}, "one\ntwo|\nthree"},
             {"one\ntw|o\nthree", {lineEnd, lineEnd}, "one\ntwo|\nthree"},
             {"one\ntwo\nth|ree", {lineEnd}, "one\ntwo\nthree|"},
             {"one\ntw|o\nthree", {start}, "|one\ntwo\nthree"},
             {"one\ntw|o\nthree", {end}, "one\ntwo\nthree|"},
             {"mm\nmm|\nmm", {up}, "mm|\nmm\nmm"},
             {"mm|\nm\nmm", {down, down}, "mm\nm\nmm|"},
             {"m|m", {up}, "|mm"},
             {"m|m", {down}, "mm|"},
         }) {
        setText(text);
        EXPECT_EQ(after(movements), expected) << text;
    }
}

TEST_F(TextKeys, StayOnALineThatIsBroken) {
    std::string words;
    for (int word = 0; word < 40; ++word) {
        words += "word ";
    }
    setText("|" + words);
    const std::string end = after({TextMovement::lineEnd});
    EXPECT_NE(end, "|" + words);
    EXPECT_NE(end, words + "|");
    EXPECT_EQ(after({TextMovement::lineEnd}), end);
    EXPECT_EQ(after({TextMovement::lineStart}), "|" + words);
}

TEST_F(TextKeys, ExtendTheSelectionAtItsLooseEnd) {
    using enum TextMovement;
    setText("one two| three");
    EXPECT_EQ(after({wordRight}, true), "one two[ three]");
    EXPECT_EQ(after({wordLeft, wordLeft}, true), "one [two] three");
    EXPECT_EQ(after({left}, true), "one[ two] three");
    EXPECT_EQ(after({start}, true), "[one two] three");
    EXPECT_EQ(after({end}, true), "one two[ three]");
    EXPECT_EQ(after({left}), "one two| three");
    EXPECT_EQ(after({left, left, left}, true), "one [two] three");
    EXPECT_EQ(after({right}), "one two| three");
    view_.setSelectedRange({4, 3});
    EXPECT_EQ(after({right}, true), "one [two ]three");
}

TEST_F(TextKeys, ShowTheEndThatMoves) {
    std::u16string lines;
    for (int line = 0; line < 50; ++line) {
        lines += u"line\n";
    }
    view_.setText(ns::String::from(lines.c_str()));
    after({TextMovement::end});
    view_.layoutIfNeeded();
    EXPECT_GT(view_.contentOffset().y, 500);
    after({TextMovement::start}, true);
    view_.layoutIfNeeded();
    EXPECT_EQ(view_.contentOffset().y, 0);
}

TEST_F(TextKeys, EraseUpToWhereTheyWouldMove) {
    using enum TextMovement;
    view_.setDelegate(textLog_);
    const auto erased = [this](const char* text, TextMovement to) {
        setText(text);
        takeSeen();
        EXPECT_TRUE(keyboard::erase(to));
        return shown();
    };
    EXPECT_EQ(erased("a😀|b", left), "a|b");
    EXPECT_EQ(erased("a|😀b", right), "a|b");
    EXPECT_EQ(takeSeen(), "mayChange(1,2,) didChange");
    EXPECT_EQ(erased("two words|", wordLeft), "two |");
    EXPECT_EQ(takeSeen(), "mayChange(4,5,) didSelect didChange");
    EXPECT_EQ(erased("two| words", wordRight), "two|");
    EXPECT_EQ(erased("one\ntwo words|\n", lineStart), "one\n|\n");
    EXPECT_EQ(erased("end|", right), "end|");
    EXPECT_EQ(erased("mm\nmm|m", up), "mm|m");
    EXPECT_EQ(erased("m|m\nmm", down), "m|m");
    setText("one two| three");
    after({wordLeft}, true);
    keyboard::erase(right);
    EXPECT_EQ(shown(), "one | three") << "only what is selected";
    text().refused = "mayChange";
    keyboard::erase(wordRight);
    EXPECT_EQ(shown(), "one | three");
}

TEST_F(TextKeys, ATextThatIsOnlyReadIsNotErased) {
    setText("one |two");
    view_.setEditable(false);
    EXPECT_FALSE(keyboard::erase(TextMovement::wordRight) && shown() != "one |two");
    EXPECT_EQ(after({TextMovement::right}, true), "one [t]wo");
}

TEST_F(TextKeys, WhatATextHidesHasNoWords) {
    field_.setSecureTextEntry(true);
    field_.setText(u"two words"_ns);
    field_.becomeFirstResponder();
    keyboard::move(TextMovement::wordLeft, false);
    keyboard::typeText(u"|"_ns);
    EXPECT_EQ(field_.text().utf8(), "|two words");
    keyboard::erase(TextMovement::wordRight);
    EXPECT_EQ(field_.text().utf8(), "|");
    keyboard::erase(TextMovement::wordLeft);
    EXPECT_EQ(field_.text().utf8(), "");
}

TEST_F(TextKeys, CopyCutAndPasteAsTheMenuDoes) {
    setText("one two|");
    EXPECT_FALSE(keyboard::perform(objc::selector<"copy:">())) << "nothing is selected";
    after({TextMovement::wordLeft}, true);
    EXPECT_TRUE(keyboard::perform(objc::selector<"cut:">()));
    EXPECT_EQ(shown(), "one |");
    EXPECT_TRUE(keyboard::perform(objc::selector<"paste:">()));
    EXPECT_TRUE(keyboard::perform(objc::selector<"paste:">()));
    EXPECT_EQ(shown(), "one twotwo|");
    EXPECT_TRUE(keyboard::perform(objc::selector<"selectAll:">()));
    EXPECT_EQ(shown(), "[one twotwo]");
}

TEST_F(TextKeys, TakeBackWhatWasDone) {
    EXPECT_FALSE(keyboard::undo());
    keyboard::typeText(u"one two"_ns);
    after({TextMovement::wordLeft}, true);
    keyboard::typeText(u"2!"_ns);
    keyboard::erase(TextMovement::left);
    EXPECT_EQ(shown(), "one 2|");
    EXPECT_TRUE(keyboard::undo());
    EXPECT_EQ(shown(), "one 2!|");
    EXPECT_TRUE(keyboard::undo());
    EXPECT_EQ(shown(), "one two|");
    EXPECT_TRUE(keyboard::undo());
    EXPECT_EQ(shown(), "|");
    EXPECT_FALSE(keyboard::undo());
    for (const char* text : {"one two|", "one 2!|", "one 2|"}) {
        EXPECT_TRUE(keyboard::redo());
        EXPECT_EQ(shown(), text);
    }
    EXPECT_FALSE(keyboard::redo());
    keyboard::undo();
    keyboard::typeText(u"?"_ns);
    EXPECT_EQ(shown(), "one 2!?|");
    EXPECT_FALSE(keyboard::redo()) << "there is another future now";
}

TEST_F(TextKeys, ACompositionIsTakenBackAsAWhole) {
    keyboard::typeText(u"one"_ns);
    after({TextMovement::wordLeft}, true);
    keyboard::setMarkedText(u"n"_ns, {1, 0});
    keyboard::setMarkedText(u"ni"_ns, {2, 0});
    keyboard::insertText(u"你"_ns);
    EXPECT_EQ(shown(), "你|");
    keyboard::undo();
    EXPECT_EQ(shown(), "one|");
    keyboard::redo();
    EXPECT_EQ(shown(), "你|");
}

TEST_F(TextKeys, WhatTheApplicationSetsIsNotTakenBack) {
    keyboard::typeText(u"one"_ns);
    view_.setText(u"two"_ns);
    EXPECT_FALSE(keyboard::undo());
    EXPECT_EQ(shown(), "two|");
    keyboard::typeText(u"!"_ns);
    view_.send<"undoManager", ns::UndoManager>().undo();
    EXPECT_EQ(shown(), "two|");
}

TEST_F(TextKeys, EachThatMovesEndsWhatIsTyped) {
    keyboard::typeText(u"one"_ns);
    after({TextMovement::left, TextMovement::right});
    keyboard::typeText(u" two"_ns);
    keyboard::undo();
    EXPECT_EQ(shown(), "one|");
    keyboard::redo();
    keyboard::typeText(u"!"_ns);
    keyboard::undo();
    EXPECT_EQ(shown(), "one two|") << "what was done again is not what is typed then";
    keyboard::typeText(u"!?"_ns);
    view_.setSelectedRange({8, 0});
    keyboard::typeText(u"-"_ns);
    keyboard::undo();
    EXPECT_EQ(shown(), "one two!|?") << "each by itself, whoever moved the caret";
    keyboard::undo();
    EXPECT_EQ(shown(), "one two|");
}

TEST_F(TextKeys, TakeTheMenuAwayAndKeepWhatIsComposed) {
    const auto menu = ui::MenuController::sharedMenuController();
    keyboard::setMarkedText(u"ni"_ns, {2, 0});
    menu.showMenu(view_, view_.bounds());
    EXPECT_TRUE(menu.isMenuVisible());
    EXPECT_EQ(after({TextMovement::left}), "n|i");
    EXPECT_FALSE(menu.isMenuVisible());
    keyboard::typeText(u"-"_ns);
    EXPECT_EQ(shown(), "n-|i");
}

TEST_F(TextKeys, NothingHappensWithoutAFocus) {
    view_.resignFirstResponder();
    EXPECT_FALSE(keyboard::move(TextMovement::left, false));
    EXPECT_FALSE(keyboard::erase(TextMovement::wordLeft));
    EXPECT_FALSE(keyboard::undo());
    EXPECT_FALSE(keyboard::perform(objc::selector<"paste:">()));
}

} // namespace
