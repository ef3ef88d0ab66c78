// Asking the translation service.
#pragma once

#include "bindings/foundation/url_session.hpp"
#include "library/toolbox/translation/translation_request.hpp"

#include <functional>

namespace wentra::toolbox {

/// What comes of a text: its translation, or an error and no translation. Main thread.
using TranslationHandler = std::function<void(ns::String translated, ns::Error error)>;

/// Asks for each of the text's lines. The handler gets the whole translation, its lines joined by
/// line breaks, when the last line has come; and each line's error as it comes, after which there
/// is no whole. It is destroyed on the main thread. Any thread.
void requestTranslation(std::u16string_view text, const TranslationAccount& account,
                        TranslationHandler handler);

/// The SHA-256 of the text's UTF-8, in lower-case hexadecimal digits.
[[nodiscard]] std::string sha256(std::u16string_view text);

} // namespace wentra::toolbox
