// Answers to buttons whose tools are not there yet.
#include "library/toolbox/screens_to_come.hpp"

#include "library/toolbox/floating_view_controller.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

void notYetFor(FloatingViewController, objc::Object) {}

} // namespace

std::span<const objc::Change> screensToCome() {
    static constexpr std::array changes{
        // The list of files and crash logs.
        objc::addition<"handlerzLongPress:", &notYetFor>(),
    };
    return changes;
}

} // namespace wentra::toolbox
