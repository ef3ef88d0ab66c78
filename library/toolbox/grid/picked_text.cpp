// Copying and sharing what is picked.
#include "library/toolbox/grid/picked_text.hpp"

#include "bindings/uikit/pasteboard.hpp"
#include "library/common/sharing.hpp"

namespace wentra::toolbox {

using namespace ns::literals;

void PickedText::copy(objc::Object) {
    ui::Pasteboard::generalPasteboard().setString(selection_.pickedOrCopied());
    selection_.forgetTokens();
}

void PickedText::share(objc::Object) {
    const ns::String words = selection_.tokens().componentsJoined(u" "_ns);
    shareText(words ? words : u""_ns);
}

} // namespace wentra::toolbox
