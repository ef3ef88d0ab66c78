// Answers to buttons whose tools are not there yet.
#include "library/toolbox/screens_to_come.hpp"

#include "library/toolbox/floating_view_controller.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

void notYet(FloatingViewController) {}
void notYetFor(FloatingViewController, objc::Object) {}
void notYetForTwo(FloatingViewController, objc::Object, objc::Object) {}

} // namespace

std::span<const objc::Change> screensToCome() {
    static constexpr std::array changes{
        // The clipboard history.
        objc::addition<"showClipboard:", &notYetFor>(),
        // The quick switches.
        objc::addition<"handlePasteButtonLongPress:", &notYetFor>(),
        // The list of files and crash logs.
        objc::addition<"handlerzLongPress:", &notYetFor>(),
        // The downloader.
        objc::addition<"goxiazai", &notYet>(),
        objc::addition<"downloadWithUrl:session:", &notYetForTwo>(),
        // The screen recorder.
        objc::addition<"startRecording", &notYet>(),
        objc::addition<"stopRecording", &notYet>(),
    };
    return changes;
}

} // namespace wentra::toolbox
