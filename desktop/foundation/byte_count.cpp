// Formatting byte counts.
#include "desktop/foundation/byte_count.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/hook.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace desktop::foundation {
namespace {

/// The phone's numbers of the styles: files and decimal counts have units of 1000.
enum class CountStyle : long { file = 0, memory = 1, decimal = 2, binary = 3 };

double unitOf(CountStyle style) {
    return style == CountStyle::memory || style == CountStyle::binary ? 1024 : 1000;
}

using Formatter = objc::Next<ns::String(long long, CountStyle)>;
ns::String format(Formatter, objc::Object, long long bytes, CountStyle style) {
    return ns::String::fromUtf8(byteCountText(bytes, unitOf(style)));
}

std::string withoutZeros(std::string number) {
    if (number.find('.') != number.npos) {
        number.erase(number.find_last_not_of('0') + 1);
        number.erase(number.find_last_not_of('.') + 1);
    }
    return number;
}

} // namespace

std::string byteCountText(long long bytes, double unit) {
    constexpr std::array names{"KB", "MB", "GB", "TB", "PB", "EB"};
    if (bytes == 0) {
        return "零KB";
    }
    auto count = static_cast<double>(bytes);
    if (std::abs(count) < unit) {
        return std::to_string(bytes) + "字节";
    }
    std::size_t name = 0;
    for (count /= unit; std::abs(count) >= unit && name + 1 < names.size(); ++name) {
        count /= unit;
    }
    std::array<char, 40> number{};
    std::snprintf(number.data(), number.size(), "%.*f",
                  static_cast<int>(std::min<std::size_t>(name, 2)), count);
    return withoutZeros(number.data()) + " " + names[name];
}

void installByteCounts() {
    objc::install(
        objc::classHook<"NSByteCountFormatter", "stringFromByteCount:countStyle:", &format>());
}

} // namespace desktop::foundation
