// From the text through requests and answers to the dialog.
#include "library/toolbox/translation/translation.hpp"

#include "bindings/commoncrypto/digest.hpp"
#include "bindings/dispatch/dispatch.hpp"
#include "bindings/foundation/json_serialization.hpp"
#include "bindings/foundation/url_session.hpp"
#include "bindings/safariservices/safari_view_controller.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/screens.hpp"
#include "library/common/text_encoding.hpp"
#include "library/common/text_parts.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/translation/bilingual_view.hpp"
#include "library/toolbox/translation/result_alert.hpp"
#include "library/toolbox/translation/translation_batch.hpp"
#include "library/toolbox/translation/translation_request.hpp"

#include <array>
#include <cstdlib>
#include <memory>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using preferences::keys;

/// The synthesizer that reads aloud; a controller that was never shown has none yet.
av::SpeechSynthesizer synthesizerOf(FloatingViewController controller) {
    if (!controller.synth()) {
        controller.setSynth(av::SpeechSynthesizer::make());
    }
    return controller.synth();
}

void showResult(FloatingViewController controller, ns::String title, ns::String message,
                ns::String original, ns::String translated) {
    const TranslationResult result{title, message, original, translated};
    if (preferences::Preferences::read().on(keys.bilingualStyle)) {
        const auto window = ui::Application::sharedApplication().windows().first();
        window.addSubview(BilingualView::with(result));
    } else {
        presentResultAlert(result, synthesizerOf(controller));
    }
}

void showError(FloatingViewController controller, ns::String message) {
    controller.send<"showAlertWithTitle:message:originalText:translatedText:">(
        u"翻译错误"_ns, message, ns::String(), ns::String());
}

/// The translation in the service's answer; empty when there is none, as in an error's answer.
std::u16string translationIn(ns::Data answer) {
    const auto object = ns::JsonSerialization::object(answer).value.as<ns::Dictionary>();
    const auto results = object.get(u"trans_result"_ns).as<ns::Array>();
    const auto first = results.first().as<ns::Dictionary>();
    return first.get(u"dst"_ns).as<ns::String>().utf16();
}

/// One text on its way through the service. Main thread only.
struct Translation {
    objc::Strong<FloatingViewController> controller;
    objc::Copied<ns::String> text;
    TranslationBatch batch;
};

void receive(Translation& translation, std::size_t line, ns::Data answer, ns::Error error) {
    if (error) {
        showError(translation.controller, error.localizedDescription());
        translation.batch.fail();
    } else if (const auto whole = translation.batch.complete(line, translationIn(answer)); whole) {
        const auto translated = ns::String::from(*whole);
        translation.controller.send<"showAlertWithTitle:message:originalText:translatedText:">(
            u"翻译结果"_ns, translated, ns::String(translation.text), translated);
    }
}

/// The SHA-256 of the text's UTF-8, in lower-case hexadecimal digits.
std::string sha256(std::u16string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hexadecimal;
    for (const unsigned char byte : cc::sha256(utf8FromUtf16(text))) {
        hexadecimal += {digits[byte >> 4U], digits[byte & 0xFU]};
    }
    return hexadecimal;
}

unsigned randomSalt() {
    constexpr unsigned count = 10'000;
    return arc4random_uniform(count);
}

void request(const std::shared_ptr<Translation>& translation, std::size_t index,
             std::u16string_view line, std::string_view target, const TranslationAccount& account) {
    const unsigned salt = randomSalt();
    const std::string sign = sha256(signedText(account, line, salt));
    const std::string address = translationAddress(account, line, target, salt, sign);
    const auto completion = ns::UrlSession::Handler::from(
        // The translation goes on to the main thread: its controller must not end on another. What
        // is captured by its own name would be constant here, and copied instead of moved.
        [translation = translation, index](ns::Data answer, ns::UrlResponse,
                                           ns::Error error) mutable {
            dispatch::async(
                dispatch::mainQueue(),
                [translation = std::move(translation), index, answer = objc::Strong(answer),
                 error = objc::Strong(error)] { receive(*translation, index, answer, error); });
        });
    ns::UrlSession::sharedSession()
        .dataTask(ns::Url::withString(ns::String::fromUtf8(address)), completion)
        .resume();
}

void translateByService(FloatingViewController controller, ns::String text,
                        const TranslationAccount& account) {
    const std::u16string units = text.utf16();
    const std::string_view target = targetLanguage(units);
    const std::vector<std::u16string_view> lines = splitLines(units);
    const auto translation = std::make_shared<Translation>(
        Translation{controller, text, TranslationBatch(lines.size())});
    for (std::size_t index = 0; index < lines.size(); ++index) {
        request(translation, index, lines[index], target, account);
    }
}

void translateOnPage(ns::String text) {
    const auto address = ns::String::fromUtf8(translationPageAddress(text.utf16()));
    const auto browser = sf::SafariViewController::with(ns::Url::withString(address));
    topViewController().present(browser, true);
}

/// The picked words, which are no longer picked then, or else the text.
ns::String textToTranslate(FloatingViewController controller, ns::String text) {
    const ns::MutableArray words = controller.selectedWords();
    if (words.count() == 0) {
        return text;
    }
    const ns::String joined = words.componentsJoined(u" "_ns);
    words.removeAll();
    return joined;
}

void translate(FloatingViewController controller, ns::String given) {
    const auto preferences = preferences::Preferences::read();
    const TranslationAccount account{preferences.text(keys.translationIdentifier),
                                     preferences.text(keys.translationSecret)};
    if (account.identifier.empty() || account.secret.empty()) {
        showError(controller, u"百度翻译ID或key不存在，请检查你的输入"_ns);
        return;
    }
    const ns::String text = textToTranslate(controller, given);
    if (text.length() == 0) {
        showError(controller, u"没有需要翻译的文本"_ns);
    } else if (preferences.on(keys.translateOnWeb)) {
        translateOnPage(text);
    } else {
        translateByService(controller, text, account);
    }
}

void translatePasteboard(FloatingViewController controller, objc::Object /*sender*/) {
    translate(controller, ui::Pasteboard::generalPasteboard().string());
}

void translateGiven(FloatingViewController controller, objc::Object /*sender*/, ns::String text) {
    translate(controller, text);
}

void translateText(FloatingViewController controller, ns::String text) {
    controller.send<"wzjhButtonClicked:selectedText:">(ui::Button::withType(ui::ButtonType::system),
                                                       text);
}

ns::String encoded(FloatingViewController, ns::String text) {
    return ns::String::fromUtf8(encodedForService(text.utf16()));
}

ns::String digest(FloatingViewController, ns::String text) {
    return ns::String::fromUtf8(sha256(text.utf16()));
}

bool hasChinese(FloatingViewController, ns::String text) { return containsChinese(text.utf16()); }

} // namespace

std::span<const objc::Change> translationCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "wzjhButtonClicked:", &translatePasteboard>(),
        objc::addition<"ZKFloatingViewController",
                       "wzjhButtonClicked:selectedText:", &translateGiven>(),
        objc::addition<"ZKFloatingViewController", "translateText:", &translateText>(),
        objc::addition<"ZKFloatingViewController", "URLEncodedString:", &encoded>(),
        objc::addition<"ZKFloatingViewController", "SHA256HashString:", &digest>(),
        objc::addition<"ZKFloatingViewController", "stringContainsChinese:", &hasChinese>(),
        objc::addition<"ZKFloatingViewController",
                       "showAlertWithTitle:message:originalText:translatedText:", &showResult>(),
    };
    return changes;
}

} // namespace wentra::toolbox
