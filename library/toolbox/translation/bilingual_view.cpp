// The dialog's views, buttons and gestures.
#include "library/toolbox/translation/bilingual_view.hpp"

#include "bindings/avfaudio/speech_synthesizer.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/common/buttons.hpp"
#include "library/common/draggable_view.hpp"
#include "library/common/gestures.hpp"
#include "library/common/light_background.hpp"
#include "library/common/outline.hpp"
#include "library/common/sharing.hpp"
#include "library/common/speaking.hpp"
#include "library/toolbox/translation/replacing.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

constexpr double dialogHeight = 545;
constexpr double margin = 10;
constexpr double textHeight = 180;
constexpr double originalTop = 50;
constexpr double translatedTop = 270;
constexpr double delayBeforeLines = 0.2;

class BilingualViewPeer : public objc::Peer<BilingualViewPeer, BilingualView> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithTitle:message:originalText:translatedText:",
                         &BilingualViewPeer::initWithTexts>(),
            objc::property<"originalTextView", &BilingualViewPeer::originalTextView_>(),
            objc::property<"translatedTextView", &BilingualViewPeer::translatedTextView_>(),
            objc::property<"moveRecognizer", &BilingualViewPeer::moveRecognizer_>(),
            objc::property<"pinchRecognizer", &BilingualViewPeer::pinchRecognizer_>(),
            objc::property<"synth", &BilingualViewPeer::synth_>(),
            objc::method<"handleMoveGesture:", &BilingualViewPeer::handleMove>(),
            objc::method<"handlePinchGesture:", &BilingualViewPeer::handlePinch>(),
            objc::method<"shareOriginalTextButtonClicked", &BilingualViewPeer::shareOriginal>(),
            objc::method<"shareTranslatedTextButtonClicked", &BilingualViewPeer::shareTranslated>(),
            objc::method<"copyOriginalTextButtonClicked", &BilingualViewPeer::copyOriginal>(),
            objc::method<"copyTranslatedTextButtonClicked", &BilingualViewPeer::copyTranslated>(),
            objc::method<"readOriginalButtonClicked", &BilingualViewPeer::readOriginal>(),
            objc::method<"readTranslatedButtonClicked", &BilingualViewPeer::readTranslated>(),
            objc::method<"useOriginalTextButtonClicked", &BilingualViewPeer::useOriginal>(),
            objc::method<"restoreOriginalButtonClicked", &BilingualViewPeer::restoreOriginal>(),
            objc::method<"stopSpeakingButtonClicked", &BilingualViewPeer::stopSpeech>(),
            objc::method<"closeButtonClicked", &BilingualViewPeer::close>(),
        };
    }

private:
    BilingualView initWithTexts(ns::String title, ns::String message, ns::String original,
                                ns::String translated);
    void addTitle(ns::String title);
    ui::TextView addText(ns::String text, double top);
    void addMessage(ns::String message);
    void addButtons();
    void addGestures();
    void addButton(ns::String title, CGRect frame, SEL action, ui::ViewAutoresizing autoresizing);
    void addGridButton(ns::String title, int index, SEL action);

    void handleMove(ui::PanGestureRecognizer pan);
    void handlePinch(ui::PinchGestureRecognizer pinch) { scaleAlong(self(), pinch); }
    void shareOriginal() { shareText(originalTextView_.text()); }
    void shareTranslated() { shareText(translatedTextView_.text()); }
    void copyOriginal() { copy(originalTextView_.text()); }
    void copyTranslated() { copy(translatedTextView_.text()); }
    void readOriginal() {
        speakLines(synth_, originalTextView_.text(), delayBeforeLines, u"zh-TW"_ns);
    }
    void readTranslated() {
        speakLines(synth_, translatedTextView_.text(), delayBeforeLines, nullptr);
    }
    void useOriginal() {
        replaceText(originalTextView_.text(), translatedTextView_.text(), self());
    }
    void restoreOriginal() { restoreReplacedText(originalTextView_.text(), self()); }
    void stopSpeech() { stopSpeaking(synth_); }
    void close();
    static void copy(ns::String text) { ui::Pasteboard::generalPasteboard().setString(text); }

    objc::Strong<ui::TextView> originalTextView_;
    objc::Strong<ui::TextView> translatedTextView_;
    objc::Strong<ui::PanGestureRecognizer> moveRecognizer_;
    objc::Strong<ui::PinchGestureRecognizer> pinchRecognizer_;
    objc::Strong<av::SpeechSynthesizer> synth_;
};

BilingualView BilingualViewPeer::initWithTexts(ns::String title, ns::String message,
                                               ns::String original, ns::String translated) {
    const double width = ui::Screen::mainScreen().bounds().size.width;
    super<"initWithFrame:", ui::View>(CGRect{{20, 60}, {width - 40, dialogHeight}});
    setLightBackground(self(), ui::Color::withWhite(1, 0.97));
    self().setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    drawOutline(self(), {12, 0.5, ui::Color::lightGray()});
    synth_ = av::SpeechSynthesizer::make();
    addTitle(title);
    originalTextView_ = addText(original, originalTop);
    translatedTextView_ = addText(translated, translatedTop);
    if (!translated) {
        addMessage(message);
    }
    addButtons();
    addGestures();
    return self();
}

void BilingualViewPeer::addTitle(ns::String title) {
    const auto label = ui::Label::withFrame({{0, margin}, {self().bounds().size.width, 30}});
    label.setText(title);
    label.setTextAlignment(ui::TextAlignment::center);
    label.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    label.setFont(ui::Font::boldSystem(17));
    self().addSubview(label);
}

ui::TextView BilingualViewPeer::addText(ns::String text, double top) {
    const double width = self().bounds().size.width - 2 * margin;
    const auto view = ui::TextView::withFrame({{margin, top}, {width, textHeight}});
    view.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    view.setText(text);
    view.setFont(ui::Font::system(15));
    drawOutline(view, {6, 0.5, ui::Color::lightGray()});
    self().addSubview(view);
    return view;
}

/// Tells of an error, where there is no translation. It is no text of the dialog's: it is neither
/// copied nor stored.
void BilingualViewPeer::addMessage(ns::String message) {
    const auto label = ui::Label::withFrame({{margin, margin}, translatedTextView_.bounds().size});
    label.setText(message);
    label.setTextColor(ui::Color::secondaryLabel());
    label.setNumberOfLines(0);
    label.setFrame({{margin, margin},
                    label.sizeThatFits({label.frame().size.width - 2 * margin, textHeight})});
    translatedTextView_.addSubview(label);
}

void BilingualViewPeer::addButton(ns::String title, CGRect frame, SEL action,
                                  ui::ViewAutoresizing autoresizing) {
    const ButtonLook look{.title = title,
                          .frame = frame,
                          .textSize = 14,
                          .background = ui::Color::withWhite(0.95, 1),
                          .cornerRadius = 6};
    const auto button = makeButton(look, self(), action);
    button.setAutoresizingMask(autoresizing);
    self().addSubview(button);
}

void BilingualViewPeer::addGridButton(ns::String title, int index, SEL action) {
    using enum ui::ViewAutoresizing;
    constexpr int columns = 4;
    const double width = (self().bounds().size.width - 50) * 0.25;
    const int row = index / columns;
    const int column = index % columns;
    addButton(title, {{margin + (width + margin) * column, 465.5 + 39.0 * row}, {width, 29}},
              action, flexibleLeftMargin | flexibleWidth | flexibleRightMargin);
}

void BilingualViewPeer::addButtons() {
    const double width = self().bounds().size.width;
    addButton(u"分享原文"_ns, {{margin, 235.5}, {80, 29}},
              objc::selector<"shareOriginalTextButtonClicked">(),
              ui::ViewAutoresizing::flexibleRightMargin);
    addButton(u"分享翻译"_ns, {{width - 90, 235.5}, {80, 29}},
              objc::selector<"shareTranslatedTextButtonClicked">(),
              ui::ViewAutoresizing::flexibleLeftMargin);
    addGridButton(u"复制原文"_ns, 0, objc::selector<"copyOriginalTextButtonClicked">());
    addGridButton(u"复制翻译"_ns, 1, objc::selector<"copyTranslatedTextButtonClicked">());
    addGridButton(u"朗读原文"_ns, 2, objc::selector<"readOriginalButtonClicked">());
    addGridButton(u"朗读翻译"_ns, 3, objc::selector<"readTranslatedButtonClicked">());
    addGridButton(u"直接替换"_ns, 4, objc::selector<"useOriginalTextButtonClicked">());
    addGridButton(u"恢复默认"_ns, 5, objc::selector<"restoreOriginalButtonClicked">());
    addGridButton(u"停止朗读"_ns, 6, objc::selector<"stopSpeakingButtonClicked">());
    addGridButton(u"关闭窗口"_ns, 7, objc::selector<"closeButtonClicked">());
}

void BilingualViewPeer::addGestures() {
    moveRecognizer_ = addPan(self(), self(), objc::selector<"handleMoveGesture:">());
    pinchRecognizer_ = addPinch(self(), self(), objc::selector<"handlePinchGesture:">());
}

void BilingualViewPeer::handleMove(ui::PanGestureRecognizer pan) {
    moveAlong(self(), pan, self().superview());
}

void BilingualViewPeer::close() {
    stopSpeaking(synth_);
    self().removeFromSuperview();
}

} // namespace

void registerBilingualView() { BilingualViewPeer::registerClass(); }

} // namespace wentra::toolbox
