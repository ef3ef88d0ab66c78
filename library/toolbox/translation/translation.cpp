// From the text to the service or the page, and from the answer to the dialog.
#include "library/toolbox/translation/translation.hpp"

#include "bindings/safariservices/safari_view_controller.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/screens.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/translation/bilingual_view.hpp"
#include "library/toolbox/translation/result_alert.hpp"
#include "library/toolbox/translation/translation_service.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using preferences::keys;

void translateOnPage(ns::String text) {
    const auto address = ns::String::fromUtf8(translationPageAddress(text.utf16()));
    const auto browser = sf::SafariViewController::with(ns::Url::withString(address));
    topViewController().present(browser, true);
}

} // namespace

void Translation::translatePasteboard(objc::Object) {
    translate(ui::Pasteboard::generalPasteboard().string());
}

void Translation::translateText(ns::String text) {
    self().send<"wzjhButtonClicked:selectedText:">(ui::Button::withType(ui::ButtonType::system),
                                                   text);
}

void Translation::translate(ns::String given) {
    const auto preferences = preferences::Preferences::read();
    const TranslationAccount account{preferences.text(keys.translationIdentifier),
                                     preferences.text(keys.translationSecret)};
    if (account.identifier.empty() || account.secret.empty()) {
        showError(u"百度翻译ID或key不存在，请检查你的输入"_ns);
        return;
    }
    const ns::String text = takeText(given);
    if (text.length() == 0) {
        showError(u"没有需要翻译的文本"_ns);
    } else if (preferences.on(keys.translateOnWeb)) {
        translateOnPage(text);
    } else {
        translateByService(text, account);
    }
}

/// The picked words, which are no longer picked then, or else what was given.
ns::String Translation::takeText(ns::String given) const {
    const ns::Array words = selection_.tokens();
    if (words.count() == 0) {
        return given;
    }
    const ns::String joined = words.componentsJoined(u" "_ns);
    selection_.forgetTokens();
    return joined;
}

void Translation::translateByService(ns::String text, const TranslationAccount& account) {
    requestTranslation(text.utf16(), account,
                       [this, keptAlive = objc::Strong(self()),
                        original = objc::Copied(text)](ns::String translated, ns::Error error) {
                           if (error) {
                               showError(error.localizedDescription());
                           } else {
                               show(u"翻译结果"_ns, translated, original, translated);
                           }
                       });
}

/// By a message: what it shows may be replaced from outside.
void Translation::show(ns::String title, ns::String message, ns::String original,
                       ns::String translated) const {
    self().send<"showAlertWithTitle:message:originalText:translatedText:">(title, message, original,
                                                                           translated);
}

void Translation::showError(ns::String message) const {
    show(u"翻译错误"_ns, message, nullptr, nullptr);
}

void Translation::showResult(ns::String title, ns::String message, ns::String original,
                             ns::String translated) {
    const TranslationResult result{title, message, original, translated};
    if (preferences::Preferences::read().on(keys.bilingualStyle)) {
        firstWindow().addSubview(BilingualView::with(result));
    } else {
        presentResultAlert(result, synthesizer());
    }
}

/// A controller that was never shown has none yet.
av::SpeechSynthesizer Translation::synthesizer() {
    if (!synth_) {
        synth_ = av::SpeechSynthesizer::make();
    }
    return synth_;
}

ns::String Translation::encoded(ns::String text) const {
    return ns::String::fromUtf8(encodedForService(text.utf16()));
}

ns::String Translation::digest(ns::String text) const {
    return ns::String::fromUtf8(sha256(text.utf16()));
}

} // namespace wentra::toolbox
