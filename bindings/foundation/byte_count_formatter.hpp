// NSByteCountFormatter: sizes as people read them.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

/// What a kilobyte is; the platform's numbers. In files it is 1000 bytes.
enum class ByteCountFormatterCountStyle : long { file = 0, memory = 1, decimal = 2, binary = 3 };

struct ByteCountFormatter : objc::Kind<ByteCountFormatter, "NSByteCountFormatter"> {
    using Kind::Kind;

    static String stringFromByteCount(long long bytes, ByteCountFormatterCountStyle style) {
        return sendClass<"stringFromByteCount:countStyle:", String>(bytes, style);
    }
};

} // namespace ns
