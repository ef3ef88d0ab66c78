// Messages inside of messages: what a receiver is told to perform.
#pragma once

#include "desktop/host/json.hpp"

#include <optional>
#include <string>
#include <vector>

namespace desktop::host {

struct PerformedMessage {
    /// Empty when none is named.
    std::string selector;
    /// An array of the objects that are passed on.
    Json arguments;
};

/// What a message of the families performSelector: and makeObjectsPerformSelector: has its
/// receiver, or the receiver's elements, perform; nothing for any other message. `arguments` are
/// those that `selector` asks for.
[[nodiscard]] std::optional<PerformedMessage> performedMessage(const std::string& selector,
                                                               const Json& arguments);

/// Whether it is for the receiver's elements.
[[nodiscard]] bool isPerformedByElements(const std::string& selector);

/// The names that `valueForKey:` and `valueForKeyPath:` ask the receiver for, which are sent as
/// messages; none for any other message.
[[nodiscard]] std::vector<std::string> keysRead(const std::string& selector, const Json& arguments);

} // namespace desktop::host
