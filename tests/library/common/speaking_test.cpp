// Reading aloud: what is said last is said at once.
#include "library/common/speaking.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/platform/platform.hpp"

#include <gtest/gtest.h>

namespace wentra {
namespace {

using namespace ns::literals;

std::string heard;

bool stop(objc::Next<bool(long)>, objc::Object, long) {
    heard += "stop ";
    return true;
}
void say(objc::Next<void(objc::Object)>, objc::Object, objc::Object) { heard += "speak "; }

TEST(Speaking, StopsWhatIsReadBeforeAnotherText) {
    const objc::Pool pool;
    desktop::registerPlatform();
    ASSERT_EQ(objc::install(objc::hook<"AVSpeechSynthesizer", "stopSpeakingAtBoundary:", &stop>()),
              objc::Outcome::installed);
    ASSERT_EQ(objc::install(objc::hook<"AVSpeechSynthesizer", "speakUtterance:", &say>()),
              objc::Outcome::installed);
    const auto synthesizer = av::SpeechSynthesizer::make();
    speak(synthesizer, u"text"_ns, 0);
    EXPECT_EQ(std::exchange(heard, {}), "stop speak ");
    speak(synthesizer, nullptr, 0);
    EXPECT_EQ(std::exchange(heard, {}), "stop ");
    speakLines(synthesizer, u"one\ntwo"_ns, 0, nullptr);
    EXPECT_EQ(heard, "stop speak speak ");
}

} // namespace
} // namespace wentra
