// The two alerts, which differ in how much they offer.
#include "library/toolbox/search/pinyin.hpp"

#include "bindings/foundation/string_transform.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/common/alert.hpp"
#include "library/common/percent_encoding.hpp"
#include "library/common/speaking.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

constexpr double delayBeforeSpeaking = 0.3;

void copy(ns::String text) { ui::Pasteboard::generalPasteboard().setString(text); }

ns::String pasteboardText() { return ui::Pasteboard::generalPasteboard().string(); }

struct Romanized {
    explicit Romanized(ns::String text) : original(text), pinyin(pinyinOf(text)) {}

    [[nodiscard]] ns::String both() const {
        return ns::String::from(original.utf16() + u"\n\n" + pinyin.utf16());
    }

    objc::Copied<ns::String> original;
    objc::Copied<ns::String> pinyin;
};

Alert alertOf(const Romanized& text) {
    const Alert alert(u"文字转拼音结果"_ns,
                      ns::String::from(std::u16string(u"\n").append(text.both().utf16())));
    return alert.covering(ui::ModalPresentation::overCurrentContext);
}

void addCopying(const Alert& alert, const Romanized& text) {
    alert.action(u"复制全部"_ns, [text] { copy(text.both()); })
        .action(u"复制原文"_ns, [text] { copy(text.original); })
        .action(u"复制拼音"_ns, [text] { copy(text.pinyin); });
}

} // namespace

ns::String pinyinOf(ns::String text) {
    return ns::applyTransform(ns::applyTransform(text, ns::mandarinToLatin()),
                              ns::stripDiacritics());
}

void Pinyin::showOfPasteboard(ui::GestureRecognizer press) const {
    const ns::String text = pasteboardText();
    if (press.state() != ui::GestureState::began || text.length() == 0) {
        return;
    }
    const Romanized romanized(text);
    const Alert alert = alertOf(romanized);
    alert.action(u"URL编码"_ns, [text = romanized.original, controller = objc::Strong(self())] {
        copy(controller.send<"urlEncode:", ns::String>(ns::String(text)));
    });
    alert.action(u"URL解码"_ns, [text = romanized.original, controller = objc::Strong(self())] {
        copy(controller.send<"urlDecode:", ns::String>(ns::String(text)));
    });
    addCopying(alert, romanized);
    const objc::Strong voice = translation_.synthesizer();
    alert
        // By then the pasteboard may hold what an action has copied.
        .action(u"朗读文字"_ns,
                [voice] { speakLines(voice, pasteboardText(), delayBeforeSpeaking, nullptr); })
        .action(u"关闭窗口"_ns, ui::AlertActionStyle::cancel, [voice] { stopSpeaking(voice); })
        .present();
}

void Pinyin::show(objc::Object /*gesture*/, ns::String text) const {
    const Romanized romanized(text);
    const Alert alert = alertOf(romanized);
    addCopying(alert, romanized);
    alert.action(u"关闭窗口"_ns, ui::AlertActionStyle::cancel).present();
}

ns::String Pinyin::urlEncoded(ns::String text) const {
    return text ? ns::String::fromUtf8(percentEncoded(text.utf16(), percent::queryAllowed))
                : nullptr;
}

ns::String Pinyin::urlDecoded(ns::String text) const { return text.removingPercentEncoding(); }

} // namespace wentra::toolbox
