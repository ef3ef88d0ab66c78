// Speech: voices, sound, and the queue on the virtual clock.
#include "bindings/avfaudio/speech_synthesizer.hpp"
#include "bindings/foundation/array.hpp"
#include "bindings/foundation/number.hpp"
#include "desktop/avfaudio/speech_sound.hpp"
#include "desktop/avfaudio/speech_voices.hpp"
#include "desktop/class.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include <algorithm>
#include <limits>

namespace {

using namespace ns::literals;
using namespace desktop::speech;
using desktop::Clock;
using desktop::run_loop::advance;

TEST(SpeechVoice, IsFoundByLanguage) {
    struct Case {
        const char* language;
        const char* synthesiser;
    };
    constexpr std::array cases{Case{"zh-TW", "cmn"}, Case{"ZH-hk", "yue"}, Case{"zh", "cmn"},
                               Case{"en", "en-us"},  Case{"ja-JP", "ja"},  Case{"xx-XX", nullptr},
                               Case{"", nullptr},    Case{"zh-", nullptr}};
    for (const Case& c : cases) {
        const VoiceName* voice = voiceFor(c.language);
        EXPECT_EQ(voice == nullptr, c.synthesiser == nullptr) << c.language;
        if (voice != nullptr && c.synthesiser != nullptr) {
            EXPECT_EQ(voice->synthesiser, c.synthesiser) << c.language;
        }
    }
}

int loudest(const Sound& sound) {
    int loudest = 0;
    for (const std::int16_t sample : sound.samples) {
        loudest = std::max(loudest, std::abs(static_cast<int>(sample)));
    }
    return loudest;
}

TEST(SpeechSound, IsHeardAndAsLongAsItsText) {
    const Sound word = soundOf({"hello", "en-us"});
    EXPECT_GT(loudest(word), 1000);
    EXPECT_GT(word.seconds(), 0.2);
    EXPECT_LT(word.seconds(), 2);
    EXPECT_GT(soundOf({"hello hello hello hello", "en-us"}).seconds(), 1.7 * word.seconds());
    EXPECT_GT(soundOf({"hello", "en-us", 0.1}).seconds(), 1.2 * word.seconds());
    EXPECT_EQ(loudest(soundOf({"hello", "en-us", 0.5, 1, 0})), 0);
    EXPECT_GT(loudest(soundOf({"早上好", "cmn"})), 1000);
    EXPECT_LT(soundOf({"", "en-us"}).seconds(), 0.5);
}

TEST(SpeechSound, EveryVoiceOfTheTableIsInstalled) {
    for (const VoiceName& voice : voices()) {
        EXPECT_GT(loudest(soundOf({"1 2 3 שלום", std::string(voice.synthesiser)})), 100)
            << voice.language;
    }
}

TEST(SpeechSound, HostileMeasuresCountAsTheNearest) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(wordsPerMinute(0.5), 175);
    EXPECT_EQ(wordsPerMinute(0), 80);
    EXPECT_EQ(wordsPerMinute(infinity), wordsPerMinute(1));
    EXPECT_EQ(wordsPerMinute(nan), wordsPerMinute(-1));
    EXPECT_GT(soundOf({"hello", "en-us", nan, infinity, -infinity}).seconds(), 0);
    EXPECT_LT(soundOf({std::string(1'000'000, 'a'), "en-us"}).seconds(), 700);
}

TEST(SpeechSound, IsWrittenAsAWaveFile) {
    const std::string file = waveFile({22050, {0, 1, -1}});
    EXPECT_EQ(file.size(), 44U + 6U);
    EXPECT_EQ(file.substr(0, 4) + file.substr(8, 8), "RIFFWAVEfmt ");
    EXPECT_EQ(file.substr(24, 4), std::string("\x22\x56\0\0", 4));
    EXPECT_EQ(file.substr(40), std::string("\x06\0\0\0\0\0\x01\0\xff\xff", 10));
}

struct ListenerKind : objc::Kind<ListenerKind, "SpeechTestListener"> {
    using Kind::Kind;
};

/// Writes down what a synthesizer tells its delegate: "start a", "finish a", …
class Listener : public desktop::PlatformClass<Listener, ListenerKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"speechSynthesizer:didStartSpeechUtterance:", &Listener::started>(),
            objc::method<"speechSynthesizer:didFinishSpeechUtterance:", &Listener::finished>(),
            objc::method<"speechSynthesizer:didCancelSpeechUtterance:", &Listener::cancelled>(),
        };
    }
    std::vector<std::string> told;

private:
    using Utterance = av::SpeechUtterance;
    void started(objc::Object, Utterance utterance) { note("start ", utterance); }
    void finished(objc::Object, Utterance utterance) { note("finish ", utterance); }
    void cancelled(objc::Object, Utterance utterance) { note("cancel ", utterance); }
    void note(const std::string& what, Utterance utterance) {
        told.push_back(what + utterance.speechString().utf8());
    }
};

class Speech : public tests::UIKitTest {
protected:
    static void SetUpTestSuite() {
        UIKitTest::SetUpTestSuite();
        Listener::registerClass();
    }
    void SetUp() override {
        Clock::shared().setMode(Clock::Mode::virtual_);
        desktop::EventLog::shared().take();
        synthesizer.send<"setDelegate:">(listener);
    }
    void TearDown() override { Clock::shared().setMode(Clock::Mode::real); }

    static av::SpeechUtterance utterance(const char* text, double delay) {
        const auto made = av::SpeechUtterance::withString(ns::String::fromUtf8(text));
        made.setVoice(av::SpeechSynthesisVoice::withLanguage(u"en-US"_ns));
        made.setPreUtteranceDelay(delay);
        return made;
    }
    std::vector<std::string> told() { return std::exchange(Listener::of(listener).told, {}); }

    using Told = std::vector<std::string>;
    const double length = soundOf({"one", "en-us"}).seconds();
    ListenerKind listener = ListenerKind::make();
    av::SpeechSynthesizer synthesizer = av::SpeechSynthesizer::make();
};

TEST_F(Speech, OneAfterTheOtherWithExactDelays) {
    synthesizer.speak(utterance("one", 0.3));
    synthesizer.speak(utterance("two", 0.2));
    advance(0.29);
    EXPECT_EQ(told(), Told{});
    EXPECT_TRUE(synthesizer.isSpeaking());
    advance(0.02);
    EXPECT_EQ(told(), Told{"start one"});
    // The synthesiser varies the length by some milliseconds.
    advance(length - 0.06);
    EXPECT_EQ(told(), Told{});
    advance(0.1);
    EXPECT_EQ(told(), Told{"finish one"});
    advance(0.2);
    EXPECT_EQ(told(), Told{"start two"});
    advance(10);
    EXPECT_EQ(told(), Told{"finish two"});
    EXPECT_FALSE(synthesizer.isSpeaking());
}

TEST_F(Speech, TellsTheEventLog) {
    synthesizer.speak(utterance("one", 0.3));
    EXPECT_TRUE(synthesizer.stopSpeaking(av::SpeechBoundary::immediate));
    EXPECT_FALSE(synthesizer.stopSpeaking(av::SpeechBoundary::immediate));
    const auto events = desktop::EventLog::shared().take();
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].kind, "speech");
    EXPECT_TRUE(events[0].fields.get(u"text"_ns).isEqual(u"one"_ns));
    EXPECT_TRUE(events[0].fields.get(u"language"_ns).isEqual(u"en-US"_ns));
    EXPECT_EQ(events[0].fields.get(u"delay"_ns).assume<ns::Number>().doubleValue(), 0.3);
    EXPECT_EQ(events[1].kind, "speechStopped");
}

TEST_F(Speech, StoppingForgetsWhatWaits) {
    synthesizer.speak(utterance("one", 0));
    synthesizer.speak(utterance("two", 0));
    advance(0.01);
    synthesizer.stopSpeaking(av::SpeechBoundary::immediate);
    EXPECT_EQ(told(), (Told{"start one", "cancel one", "cancel two"}));
    EXPECT_FALSE(synthesizer.isSpeaking());
    synthesizer.speak(utterance("three", 0));
    advance(10);
    EXPECT_EQ(told(), (Told{"start three", "finish three"}));
}

TEST_F(Speech, PausingKeepsTheRest) {
    synthesizer.speak(utterance("one", 0.5));
    advance(0.4);
    EXPECT_TRUE((synthesizer.send<"pauseSpeakingAtBoundary:", bool>(0L)));
    advance(60);
    EXPECT_EQ(told(), Told{});
    EXPECT_TRUE((synthesizer.send<"continueSpeaking", bool>()));
    advance(0.09);
    EXPECT_EQ(told(), Told{});
    advance(0.02);
    EXPECT_EQ(told(), Told{"start one"});
}

TEST_F(Speech, RefusesTheSameUtteranceTwiceAndSurvivesNonsense) {
    const auto one = utterance("one", 0);
    synthesizer.speak(one);
    EXPECT_ANY_THROW(synthesizer.speak(one));
    EXPECT_ANY_THROW(synthesizer.speak(nullptr));
    synthesizer.speak(utterance("", std::numeric_limits<double>::quiet_NaN()));
    synthesizer.speak(av::SpeechUtterance::withString(nullptr));
    EXPECT_EQ(av::SpeechSynthesisVoice::withLanguage(u"tlh-KX"_ns), nullptr);
    EXPECT_TRUE(av::SpeechSynthesisVoice::withLanguage(nullptr).language().isEqual(u"zh-CN"_ns));
    advance(60);
    EXPECT_FALSE(synthesizer.isSpeaking());
}

TEST_F(Speech, ASynthesizerThatIsGoneIsSilent) {
    {
        const objc::Pool inner;
        const auto other = av::SpeechSynthesizer::make();
        other.send<"setDelegate:">(listener);
        other.speak(utterance("one", 0.3));
    }
    advance(10);
    EXPECT_EQ(told(), Told{});
}

} // namespace
