// Transliterations of text.
#pragma once

#include "bindings/foundation/string.hpp"

// Foundation's constants, since iOS 9.
extern "C" {
extern const id NSStringTransformMandarinToLatin;
extern const id NSStringTransformStripDiacritics;
}

namespace ns {

/// Chinese characters become pinyin with the marks of its tones.
inline String mandarinToLatin() { return objc::wrap<String>(NSStringTransformMandarinToLatin); }
/// Letters lose their marks.
inline String stripDiacritics() { return objc::wrap<String>(NSStringTransformStripDiacritics); }

/// The text after the transform; nil for nil and for a transform that there is not.
inline String applyTransform(String text, String transform) {
    constexpr bool reverse = false;
    return text.send<"stringByApplyingTransform:reverse:", String>(transform, reverse);
}

} // namespace ns
