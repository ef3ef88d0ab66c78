// One request a line; the answers come in any order and on any thread.
#include "library/toolbox/translation/translation_service.hpp"

#include "bindings/commoncrypto/digest.hpp"
#include "bindings/dispatch/dispatch.hpp"
#include "bindings/foundation/json_serialization.hpp"
#include "library/common/text_encoding.hpp"
#include "library/common/text_parts.hpp"
#include "library/toolbox/translation/translation_batch.hpp"

#include <cstdlib>
#include <memory>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

/// One text on its way through the service. Main thread only.
struct TextUnderway {
    TranslationHandler handler;
    TranslationBatch batch;
};

/// The translation in the service's answer; empty when there is none, as in an error's answer.
std::u16string translationIn(ns::Data answer) {
    const auto object = ns::JsonSerialization::object(answer).value.as<ns::Dictionary>();
    const auto results = object.get(u"trans_result"_ns).as<ns::Array>();
    const auto first = results.first().as<ns::Dictionary>();
    return first.get(u"dst"_ns).as<ns::String>().utf16();
}

void receive(TextUnderway& text, std::size_t line, ns::Data answer, ns::Error error) {
    if (error) {
        text.handler(nullptr, error);
    } else if (const auto whole = text.batch.complete(line, translationIn(answer)); whole) {
        text.handler(ns::String::from(*whole), nullptr);
    }
}

std::string signedAddress(std::u16string_view line, std::string_view target,
                          const TranslationAccount& account) {
    constexpr unsigned salts = 10'000;
    const unsigned salt = arc4random_uniform(salts);
    return translationAddress(account, line, target, salt, sha256(signedText(account, line, salt)));
}

void request(const std::shared_ptr<TextUnderway>& text, std::size_t index,
             const std::string& address) {
    const auto completion = ns::UrlSession::Handler::from(
        // The text goes on to the main thread: what its handler keeps must not end on another. What
        // is captured by its own name would be constant here, and copied instead of moved.
        [text = text, index](ns::Data answer, ns::UrlResponse, ns::Error error) mutable {
            dispatch::async(
                dispatch::mainQueue(),
                [text = std::move(text), index, answer = objc::Strong(answer),
                 error = objc::Strong(error)] { receive(*text, index, answer, error); });
        });
    ns::UrlSession::sharedSession()
        .dataTask(ns::Url::withString(ns::String::fromUtf8(address)), completion)
        .resume();
}

} // namespace

std::string sha256(std::u16string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hexadecimal;
    for (const unsigned char byte : cc::sha256(utf8FromUtf16(text))) {
        hexadecimal += {digits[byte >> 4U], digits[byte & 0xFU]};
    }
    return hexadecimal;
}

void requestTranslation(std::u16string_view text, const TranslationAccount& account,
                        TranslationHandler handler) {
    const std::vector<std::u16string_view> lines = splitLines(text);
    const auto underway = std::make_shared<TextUnderway>(
        TextUnderway{std::move(handler), TranslationBatch(lines.size())});
    for (std::size_t index = 0; index < lines.size(); ++index) {
        request(underway, index, signedAddress(lines[index], targetLanguage(text), account));
    }
}

} // namespace wentra::toolbox
