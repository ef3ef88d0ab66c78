// A translation on its way to the user.
#pragma once

#include "bindings/foundation/string.hpp"

namespace wentra::toolbox {

/// What a translation dialog shows. The texts are nil when there is an error to show instead.
struct TranslationResult {
    objc::Copied<ns::String> title;
    objc::Copied<ns::String> message;
    objc::Copied<ns::String> original;
    objc::Copied<ns::String> translated;
};

} // namespace wentra::toolbox
