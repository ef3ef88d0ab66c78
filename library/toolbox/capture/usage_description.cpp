// Looking it up in the main bundle.
#include "library/toolbox/capture/usage_description.hpp"

#include "bindings/foundation/bundle.hpp"

namespace wentra::toolbox {

bool hasUsageDescription(ns::String key) {
    const auto text = ns::Bundle::mainBundle().objectForInfoDictionaryKey(key).as<ns::String>();
    return text.length() > 0;
}

} // namespace wentra::toolbox
