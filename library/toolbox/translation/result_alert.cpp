// The alert's actions, each shown only when its preference is on.
#include "library/toolbox/translation/result_alert.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "library/common/alert.hpp"
#include "library/common/screens.hpp"
#include "library/common/speaking.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"
#include "library/toolbox/translation/edit_alert.hpp"
#include "library/toolbox/translation/replacing.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;
using preferences::keys;

constexpr double delayBeforeResult = 0.3;

/// What an action works on.
struct Subject {
    objc::Copied<ns::String> original;
    objc::Copied<ns::String> translated;
    objc::Strong<av::SpeechSynthesizer> synthesizer;
};

/// An error has no texts: there is nothing to copy then, and the pasteboard stays as it is.
void copy(ns::String text) {
    if (text) {
        ui::Pasteboard::generalPasteboard().setString(text);
    }
}

void copyOriginal(const Subject& subject) { copy(subject.original); }
void copyTranslated(const Subject& subject) { copy(subject.translated); }
void readOriginal(const Subject& subject) {
    speak(subject.synthesizer, subject.original, delayBeforeResult);
}
void readTranslated(const Subject& subject) {
    speak(subject.synthesizer, subject.translated, delayBeforeResult);
}
void modify(const Subject& subject) {
    if (subject.original) {
        presentEditAlert(subject.original, subject.translated);
    }
}
void replace(const Subject& subject) {
    if (subject.original) {
        labels::storeTextRule(subject.original.utf16(), subject.translated.utf16());
    }
}
void restore(const Subject& subject) {
    restoreReplacedText(subject.original, topViewController().view());
}

struct ResultAction {
    const preferences::Switch& preference;
    std::u16string_view title;
    void (*run)(const Subject&);
};

constexpr std::array resultActions{
    ResultAction{keys.copyOriginal, u"复制原文", &copyOriginal},
    ResultAction{keys.copyTranslated, u"复制翻译", &copyTranslated},
    ResultAction{keys.readOriginal, u"朗读原文", &readOriginal},
    ResultAction{keys.readTranslated, u"朗读翻译", &readTranslated},
    ResultAction{keys.modifyTranslated, u"修改翻译", &modify},
    ResultAction{keys.useOriginalText, u"直接替换", &replace},
    ResultAction{keys.restoreDefault, u"恢复默认", &restore},
};

} // namespace

void presentResultAlert(const TranslationResult& result, av::SpeechSynthesizer synthesizer) {
    const Alert alert(result.title, result.message);
    const auto preferences = preferences::Preferences::read();
    const Subject subject{result.original, result.translated, synthesizer};
    for (const ResultAction& action : resultActions) {
        if (preferences.on(action.preference)) {
            alert.action(ns::String::from(action.title),
                         [run = action.run, subject] { run(subject); });
        }
    }
    alert.action(u"关闭窗口"_ns).covering(ui::ModalPresentation::overCurrentContext).present();
}

} // namespace wentra::toolbox
