// Chinese text in Latin letters, and texts in the coding of URLs.
#pragma once

#include "bindings/objc/part.hpp"
#include "bindings/uikit/gesture_recognizer.hpp"
#include "library/toolbox/translation/translation.hpp"

namespace wentra::toolbox {

/// The text with pinyin in place of its Chinese characters, without the marks of the tones; other
/// letters lose their marks, too. Nil for nil.
[[nodiscard]] ns::String pinyinOf(ns::String text);

/// The alerts that show a text with its pinyin, and what can be done with the two.
class Pinyin : public objc::Part<FloatingViewController> {
public:
    Pinyin(FloatingViewController whole, Translation& translation)
        : Part(whole), translation_(translation) {}
    static Pinyin& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"buttonLongPressed:", &Pinyin::showOfPasteboard>(),
            objc::method<"buttonLongPressed:withText:", &Pinyin::show>(),
            objc::method<"shareText:", &Pinyin::showOf>(),
            objc::method<"urlEncode:", &Pinyin::urlEncoded>(),
            objc::method<"urlDecode:", &Pinyin::urlDecoded>(),
        };
    }

private:
    void showOfPasteboard(ui::GestureRecognizer press) const;
    /// The gesture does not matter and may be nil.
    void show(objc::Object gesture, ns::String text) const;
    void showOf(ns::String text) const {
        self().send<"buttonLongPressed:withText:">(objc::Object(), text);
    }
    [[nodiscard]] ns::String urlEncoded(ns::String text) const;
    [[nodiscard]] ns::String urlDecoded(ns::String text) const;

    Translation& translation_; ///< whose voice reads aloud
};

} // namespace wentra::toolbox
