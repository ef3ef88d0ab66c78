// The platform's rules in simplified Chinese.
#include "desktop/foundation/byte_count_formatter.hpp"

#include "bindings/foundation/byte_count_formatter.hpp"
#include "bindings/objc/hook.hpp"

#include <array>
#include <cmath>
#include <cstdio>

namespace desktop::foundation {
namespace {

struct Unit {
    const char* name;
    int places; ///< behind the point
};
constexpr std::array sizeUnits{Unit{"KB", 0}, Unit{"MB", 1}, Unit{"GB", 2},
                               Unit{"TB", 2}, Unit{"PB", 2}, Unit{"EB", 2}};

double rounded(double value, int places) {
    const double scale = std::pow(10, places);
    return std::round(value * scale) / scale;
}

/// Without zeros at the end.
std::string digits(double value, int places) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*f", places, value);
    std::string shown = text.data();
    if (shown.find('.') != std::string::npos) {
        shown.erase(shown.find_last_not_of('0') + 1);
    }
    return shown.ends_with('.') ? shown.substr(0, shown.size() - 1) : shown;
}

using Formatting = objc::Next<ns::String(long long, ns::ByteCountFormatterCountStyle)>;
ns::String text(Formatting /*next*/, objc::Object /*formatter*/, long long bytes,
                ns::ByteCountFormatterCountStyle style) {
    const bool binary = style == ns::ByteCountFormatterCountStyle::memory ||
                        style == ns::ByteCountFormatterCountStyle::binary;
    return ns::String::fromUtf8(byteCountText(bytes, binary ? 1024 : 1000));
}

} // namespace

std::string byteCountText(long long bytes, double kilobyte) {
    const auto count = static_cast<double>(bytes);
    if (bytes == 0) {
        return "零KB";
    }
    if (std::abs(count) < kilobyte) {
        return std::to_string(bytes) + "字节";
    }
    double value = count / kilobyte;
    std::size_t unit = 0;
    while (unit + 1 < sizeUnits.size() &&
           std::abs(rounded(value, sizeUnits[unit].places)) >= kilobyte) {
        value /= kilobyte;
        ++unit;
    }
    return digits(rounded(value, sizeUnits[unit].places), sizeUnits[unit].places) + " " +
           sizeUnits[unit].name;
}

void installByteCountFormatter() {
    objc::install(
        objc::classHook<"NSByteCountFormatter", "stringFromByteCount:countStyle:", &text>());
}

} // namespace desktop::foundation
