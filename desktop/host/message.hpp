// Messages written in JSON: arguments and results are converted by the method's type encoding.
#pragma once

#include "bindings/objc/strong.hpp"
#include "desktop/host/values.hpp"

namespace desktop::host {

/// Sends `selector` with `arguments`, an array, to an object or a class. Throws RequestError when
/// the receiver has no such method, takes other arguments or objects of other classes, or carries
/// types that have no JSON form; what the method throws passes through.
[[nodiscard]] Json sendMessage(Values& values, objc::Object receiver, const std::string& selector,
                               const Json& arguments, ObjectForm form);

/// Allocates an object of the class and initialises it with `selector`, of the init family, and
/// `arguments`; nil when the initialiser gives nil. Throws RequestError as `sendMessage` does, and
/// for other selectors.
[[nodiscard]] objc::Strong<objc::Object>
makeObject(Values& values, Class cls, const std::string& selector, const Json& arguments);

/// The same for an object that a message has allocated, by its handle, which is from then on that
/// of what the initialiser gives.
[[nodiscard]] Json initialise(Values& values, std::uint64_t number, const std::string& selector,
                              const Json& arguments, ObjectForm form);

} // namespace desktop::host
