// MovableAlertViewzerk: original and translation side by side, in a dialog that can be moved.
#pragma once

#include "bindings/uikit/view.hpp"
#include "library/toolbox/translation/translation_result.hpp"

namespace wentra::toolbox {

struct BilingualView : objc::Kind<BilingualView, "MovableAlertViewzerk", ui::View> {
    using Kind::Kind;

    static BilingualView with(const TranslationResult& result) {
        return make<"initWithTitle:message:originalText:translatedText:">(
            ns::String(result.title), ns::String(result.message), ns::String(result.original),
            ns::String(result.translated));
    }
};

/// Declares the class.
[[gnu::cold]] void registerBilingualView();

} // namespace wentra::toolbox
