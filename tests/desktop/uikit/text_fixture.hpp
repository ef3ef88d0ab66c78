// A delegate that writes down what it is told, for text views and text fields alike.
#pragma once

#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/uikit/text_field.hpp"
#include "bindings/uikit/text_input.hpp"
#include "bindings/uikit/text_view.hpp"

namespace tests {

struct TextLogKind : objc::Kind<TextLogKind, "WTTestTextLog"> {
    using Kind::Kind;
};

/// Notes a word for each message, and does in `then` what a test wants done in it; allows what is
/// not in `refused`.
class TextLog : public objc::Peer<TextLog, TextLogKind, objc::Boundary::propagates> {
public:
    static std::vector<objc::MethodRow> methods() {
        using Self = TextLog;
        return {
            objc::method<"textViewShouldBeginEditing:", &Self::ask<"shouldBegin">>(),
            objc::method<"textViewDidBeginEditing:", &Self::note<"didBegin">>(),
            objc::method<"textViewShouldEndEditing:", &Self::ask<"shouldEnd">>(),
            objc::method<"textViewDidEndEditing:", &Self::note<"didEnd">>(),
            objc::method<"textView:shouldChangeTextInRange:replacementText:", &Self::mayChange>(),
            objc::method<"textViewDidChange:", &Self::note<"didChange">>(),
            objc::method<"textViewDidChangeSelection:", &Self::note<"didSelect">>(),
            objc::method<"textFieldShouldBeginEditing:", &Self::ask<"shouldBegin">>(),
            objc::method<"textFieldDidBeginEditing:", &Self::note<"didBegin">>(),
            objc::method<"textFieldShouldEndEditing:", &Self::ask<"shouldEnd">>(),
            objc::method<"textFieldDidEndEditing:", &Self::note<"didEnd">>(),
            objc::method<"textFieldShouldClear:", &Self::ask<"shouldClear">>(),
            objc::method<"textFieldShouldReturn:", &Self::ask<"shouldReturn">>(),
            objc::method<"textField:shouldChangeCharactersInRange:replacementString:",
                         &Self::mayChange>(),
            objc::method<"textFieldDidChangeSelection:", &Self::note<"didSelect">>(),
            objc::method<"editingChanged", &Self::event<"[changed]">>(),
            objc::method<"editingDidEndOnExit", &Self::event<"[exit]">>(),
        };
    }

    std::string seen;
    std::string refused;
    std::function<void(const std::string&)> then;

private:
    void add(const std::string& word) {
        seen += (seen.empty() ? "" : " ") + word;
        if (then) {
            then(word);
        }
    }
    template <objc::Literal Word>
    void note(objc::Object) {
        add(Word.data());
    }
    template <objc::Literal Word>
    void event() {
        add(Word.data());
    }
    template <objc::Literal Word>
    bool ask(objc::Object) {
        add(Word.data());
        return refused != Word.data();
    }
    bool mayChange(objc::Object, ns::Range range, ns::String text) {
        add("mayChange(" + std::to_string(range.location) + "," + std::to_string(range.length) +
            "," + text.utf8() + ")");
        return refused != "mayChange";
    }
};

class TextTest : public TouchTest {
protected:
    static void SetUpTestSuite() {
        TouchTest::SetUpTestSuite();
        TextLog::registerClass();
    }
    TextTest() {
        window_.addSubview(view_);
        window_.addSubview(field_);
        view_.setFont(ui::Font::system(17));
    }
    ~TextTest() override { window_.send<"endEditing:", bool>(true); }

    TextLog& text() { return TextLog::of(textLog_); }
    std::string takeSeen() { return std::exchange(text().seen, {}); }

    objc::Strong<TextLogKind> textLog_ = TextLogKind::make();
    objc::Strong<ui::TextView> view_ = ui::TextView::withFrame({{20, 100}, {300, 100}});
    objc::Strong<ui::TextField> field_ = ui::TextField::withFrame({{20, 60}, {300, 34}});
};

} // namespace tests
