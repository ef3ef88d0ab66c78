// Answers to buttons whose tools are not there yet.
#include "library/toolbox/screens_to_come.hpp"

#include "library/toolbox/floating_view_controller.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

void notYet(FloatingViewController) {}
void notYetFor(FloatingViewController, objc::Object) {}

} // namespace

std::span<const objc::Change> screensToCome() {
    static constexpr std::array changes{
        // The clipboard history.
        objc::addition<"ZKFloatingViewController", "showClipboard:", &notYetFor>(),
        // The quick switches.
        objc::addition<"ZKFloatingViewController", "handlePasteButtonLongPress:", &notYetFor>(),
        // The utilities menu.
        objc::addition<"ZKFloatingViewController", "longPress:", &notYetFor>(),
        // The list of files and crash logs.
        objc::addition<"ZKFloatingViewController", "handlerzLongPress:", &notYetFor>(),
        // The list of applications to search in, and pinyin.
        objc::addition<"ZKFloatingViewController", "ljsslongPress:", &notYetFor>(),
        objc::addition<"ZKFloatingViewController", "buttonLongPressed:", &notYetFor>(),
        // Links, and conversion to Unicode escapes.
        objc::addition<"ZKFloatingViewController", "ljtzButtonClicked:", &notYetFor>(),
        objc::addition<"ZKFloatingViewController", "umzhButtonClicked:", &notYetFor>(),
        // The screen recorder.
        objc::addition<"ZKFloatingViewController", "startRecording", &notYet>(),
        objc::addition<"ZKFloatingViewController", "stopRecording", &notYet>(),
    };
    return changes;
}

} // namespace wentra::toolbox
