// Puts the line together.
#include "library/files/viewers/image_info.hpp"

#include "library/common/fixed_point.hpp"
#include "library/common/text_encoding.hpp"

#include <cmath>

namespace wentra::files {
namespace {

std::u16string digits(double value, int places) { return utf16FromUtf8(fixedPoint(value, places)); }

/// "nan" without the sign that C writes before it on some machines.
std::u16string ratio(CGSize size) {
    const double value = size.width / size.height;
    return std::isnan(value) ? u"nan" : digits(value, 2);
}

} // namespace

std::u16string imageInfo(std::u16string_view name, CGSize pixels, std::u16string_view fileSize) {
    std::u16string line = u"图片名: ";
    line.append(name).append(u", 像素: ").append(digits(pixels.width, 0)).append(u" × ");
    line.append(digits(pixels.height, 0)).append(u", \n宽高比: ").append(ratio(pixels));
    return line.append(u", 大小: ").append(fileSize);
}

} // namespace wentra::files
