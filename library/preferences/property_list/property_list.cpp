// Turns the values of a property list into switches, numbers and texts.
#include "library/preferences/property_list/property_list.hpp"

#include "library/common/slashed_text.hpp"
#include "library/common/text_encoding.hpp"
#include "library/common/white_space.hpp"
#include "library/preferences/property_list/decimal_number.hpp"
#include "library/preferences/property_list/xml_text.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace wentra::preferences {
namespace {

std::u16string_view withoutLeadingWhiteSpace(std::u16string_view text) {
    const auto* begin = std::ranges::find_if_not(text, isWhiteSpace);
    return text.substr(static_cast<std::size_t>(begin - text.begin()));
}

bool switchOfText(std::u16string_view text) {
    text = withoutLeadingWhiteSpace(text);
    if (text.starts_with(u'+') || text.starts_with(u'-')) {
        text.remove_prefix(1);
    }
    const std::size_t first = text.find_first_not_of(u'0');
    constexpr std::u16string_view meaningOn = u"YyTt123456789";
    return first != text.npos && meaningOn.find(text[first]) != meaningOn.npos;
}

double numberOfText(std::u16string_view text) {
    text = withoutLeadingWhiteSpace(text);
    const auto* end = std::ranges::find_if(text, [](char16_t unit) { return unit >= 0x80; });
    return scanDecimal(std::string(text.begin(), end)).value;
}

double roundedToFloat(double number) {
    constexpr auto largest = static_cast<double>(std::numeric_limits<float>::max());
    if (std::abs(number) > largest) {
        return std::copysign(std::numeric_limits<double>::infinity(), number);
    }
    return static_cast<double>(static_cast<float>(number));
}

} // namespace

bool switchValue(Value value) {
    if (value.kind() == Value::Kind::number) {
        return value.number() != 0;
    }
    return switchOfText(textValue(value));
}

double numberValue(Value value) {
    if (value.kind() == Value::Kind::number) {
        return roundedToFloat(value.number());
    }
    return roundedToFloat(numberOfText(textValue(value)));
}

std::u16string textValue(Value value) {
    switch (value.kind()) {
    case Value::Kind::utf8Text:
        return utf16FromUtf8(value.bytes());
    case Value::Kind::escapedText:
        return utf16FromUtf8(unescapedXml(value.bytes()));
    case Value::Kind::slashedText:
        return unslashed(utf16FromUtf8(value.bytes()));
    case Value::Kind::utf16Text:
        return utf16FromBytes(value.bytes(), Encoding::utf16BigEndian);
    case Value::Kind::none:
    case Value::Kind::number:
        break;
    }
    return {};
}

} // namespace wentra::preferences
