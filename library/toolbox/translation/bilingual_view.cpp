// The dialog's views, buttons and gestures.
#include "library/toolbox/translation/bilingual_view.hpp"

#include "bindings/avfaudio/speech_synthesizer.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/uikit/activity_view_controller.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/pinch_gesture_recognizer.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/common/draggable_view.hpp"
#include "library/common/screens.hpp"
#include "library/common/zoom.hpp"
#include "library/toolbox/translation/replacing.hpp"
#include "library/toolbox/translation/speaking.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

constexpr double dialogHeight = 545;
constexpr double margin = 10;
constexpr double textHeight = 180;
constexpr double originalTop = 50;
constexpr double translatedTop = 270;
constexpr double delayBeforeSpeaking = 0.2;

class Own : public objc::Peer<Own, BilingualView> {
public:
    static auto methods() {
        return std::array{
            objc::method<"initWithTitle:message:originalText:translatedText:",
                         &Own::initWithTexts>(),
            objc::property<"originalTextView", &Own::originalTextView_>(),
            objc::property<"translatedTextView", &Own::translatedTextView_>(),
            objc::property<"moveRecognizer", &Own::moveRecognizer_>(),
            objc::property<"pinchRecognizer", &Own::pinchRecognizer_>(),
            objc::property<"synth", &Own::synth_>(),
            objc::method<"handleMoveGesture:", &Own::handleMove>(),
            objc::method<"handlePinchGesture:", &Own::handlePinch>(),
            objc::method<"shareOriginalTextButtonClicked", &Own::shareOriginal>(),
            objc::method<"shareTranslatedTextButtonClicked", &Own::shareTranslated>(),
            objc::method<"copyOriginalTextButtonClicked", &Own::copyOriginal>(),
            objc::method<"copyTranslatedTextButtonClicked", &Own::copyTranslated>(),
            objc::method<"readOriginalButtonClicked", &Own::readOriginal>(),
            objc::method<"readTranslatedButtonClicked", &Own::readTranslated>(),
            objc::method<"useOriginalTextButtonClicked", &Own::useOriginal>(),
            objc::method<"restoreOriginalButtonClicked", &Own::restoreOriginal>(),
            objc::method<"stopSpeakingButtonClicked", &Own::stopSpeech>(),
            objc::method<"closeButtonClicked", &Own::close>(),
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
    template <objc::Literal Action>
    void addButton(ns::String title, CGRect frame);
    template <objc::Literal Action>
    void addGridButton(ns::String title, int index);

    void handleMove(ui::PanGestureRecognizer pan);
    void handlePinch(ui::PinchGestureRecognizer pinch);
    void shareOriginal() { share(originalTextView_.text()); }
    void shareTranslated() { share(translatedTextView_.text()); }
    void copyOriginal() { copy(originalTextView_.text()); }
    void copyTranslated() { copy(translatedTextView_.text()); }
    void readOriginal() {
        speakLines(synth_, originalTextView_.text(), delayBeforeSpeaking, u"zh-TW"_ns);
    }
    void readTranslated() {
        speakLines(synth_, translatedTextView_.text(), delayBeforeSpeaking, nullptr);
    }
    void useOriginal() {
        replaceText(originalTextView_.text(), translatedTextView_.text(), self());
    }
    void restoreOriginal() { restoreReplacedText(originalTextView_.text(), self()); }
    void stopSpeech() { stopSpeaking(synth_); }
    void close();
    static void share(ns::String text);
    static void copy(ns::String text) { ui::Pasteboard::general().setString(text); }

    objc::Strong<ui::TextView> originalTextView_;
    objc::Strong<ui::TextView> translatedTextView_;
    objc::Strong<ui::PanGestureRecognizer> moveRecognizer_;
    objc::Strong<ui::PinchGestureRecognizer> pinchRecognizer_;
    objc::Strong<av::SpeechSynthesizer> synth_;
};

BilingualView Own::initWithTexts(ns::String title, ns::String message, ns::String original,
                                 ns::String translated) {
    const double width = ui::Screen::main().bounds().size.width;
    super<"initWithFrame:", ui::View>(CGRect{{20, 60}, {width - 40, dialogHeight}});
    self().setBackgroundColor(ui::Color::white(1, 0.97));
    self().layer().setCornerRadius(12);
    self().layer().setBorderWidth(0.5);
    self().layer().setBorderColor(ui::Color::lightGray().cgColor());
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

void Own::addTitle(ns::String title) {
    const auto label = ui::Label::withFrame({{0, margin}, {self().bounds().size.width, 30}});
    label.setText(title);
    label.setTextAlignment(ui::TextAlignment::center);
    label.setFont(ui::Font::boldSystem(17));
    self().addSubview(label);
}

ui::TextView Own::addText(ns::String text, double top) {
    const double width = self().bounds().size.width - 2 * margin;
    const auto view = ui::TextView::withFrame({{margin, top}, {width, textHeight}});
    view.setText(text);
    view.setFont(ui::Font::system(15));
    view.layer().setCornerRadius(6);
    view.layer().setBorderWidth(0.5);
    view.layer().setBorderColor(ui::Color::lightGray().cgColor());
    self().addSubview(view);
    return view;
}

/// Tells of an error, where there is no translation. It is no text of the dialog's: it is neither
/// copied nor stored.
void Own::addMessage(ns::String message) {
    const auto label = ui::Label::withFrame({{margin, margin}, translatedTextView_.bounds().size});
    label.setText(message);
    label.setTextColor(ui::Color::secondaryLabel());
    label.setNumberOfLines(0);
    label.setFrame({{margin, margin},
                    label.sizeThatFits({label.frame().size.width - 2 * margin, textHeight})});
    translatedTextView_.addSubview(label);
}

template <objc::Literal Action>
void Own::addButton(ns::String title, CGRect frame) {
    const auto button = ui::Button::ofType(ui::ButtonType::system);
    button.setFrame(frame);
    button.setTitle(title, ui::control_state::normal);
    button.titleLabel().setFont(ui::Font::system(14));
    button.setBackgroundColor(ui::Color::white(0.95, 1));
    button.layer().setCornerRadius(6);
    button.addTarget(self(), objc::selector<Action>(), ui::control_events::touchUpInside);
    self().addSubview(button);
}

template <objc::Literal Action>
void Own::addGridButton(ns::String title, int index) {
    constexpr int columns = 4;
    const double width = (self().bounds().size.width - 50) * 0.25;
    addButton<Action>(
        title, {{margin + (width + margin) * (index % columns), 465.5 + 39.0 * (index / columns)},
                {width, 29}});
}

void Own::addButtons() {
    const double width = self().bounds().size.width;
    addButton<"shareOriginalTextButtonClicked">(u"分享原文"_ns, {{margin, 235.5}, {80, 29}});
    addButton<"shareTranslatedTextButtonClicked">(u"分享翻译"_ns, {{width - 90, 235.5}, {80, 29}});
    addGridButton<"copyOriginalTextButtonClicked">(u"复制原文"_ns, 0);
    addGridButton<"copyTranslatedTextButtonClicked">(u"复制翻译"_ns, 1);
    addGridButton<"readOriginalButtonClicked">(u"朗读原文"_ns, 2);
    addGridButton<"readTranslatedButtonClicked">(u"朗读翻译"_ns, 3);
    addGridButton<"useOriginalTextButtonClicked">(u"直接替换"_ns, 4);
    addGridButton<"restoreOriginalButtonClicked">(u"恢复默认"_ns, 5);
    addGridButton<"stopSpeakingButtonClicked">(u"停止朗读"_ns, 6);
    addGridButton<"closeButtonClicked">(u"关闭窗口"_ns, 7);
}

void Own::addGestures() {
    moveRecognizer_ = ui::GestureRecognizer::with<ui::PanGestureRecognizer>(
        self(), objc::selector<"handleMoveGesture:">());
    pinchRecognizer_ = ui::GestureRecognizer::with<ui::PinchGestureRecognizer>(
        self(), objc::selector<"handlePinchGesture:">());
    self().addGestureRecognizer(moveRecognizer_);
    self().addGestureRecognizer(pinchRecognizer_);
}

void Own::handleMove(ui::PanGestureRecognizer pan) { moveAlong(self(), pan, self().superview()); }

void Own::handlePinch(ui::PinchGestureRecognizer pinch) {
    self().setTransform(scaled(self().transform(), pinch.scale()));
    pinch.setScale(1);
}

void Own::share(ns::String text) {
    const auto items = ns::MutableArray::make();
    items.add(text);
    const auto sheet = ui::ActivityViewController::sharing(items);
    sheet.setModalPresentationStyle(ui::ModalPresentation::overCurrentContext);
    topViewController().present(sheet, true);
}

void Own::close() {
    stopSpeaking(synth_);
    self().removeFromSuperview();
}

} // namespace

void registerBilingualView() { Own::registerClass(); }

} // namespace wentra::toolbox
