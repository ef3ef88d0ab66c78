// Scans decimal numbers and integers of either base without the C library's locale.
#include "library/preferences/property_list/decimal_number.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace wentra::preferences {
namespace {

constexpr bool isDigit(char character) { return character >= '0' && character <= '9'; }

constexpr std::uint64_t digitValue(char character) {
    if (isDigit(character)) {
        return static_cast<std::uint64_t>(character - '0');
    }
    const char lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'f' ? static_cast<std::uint64_t>(lower - 'a' + 10) : 16;
}

constexpr bool isSpace(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::size_t signLength(std::string_view text) {
    return !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
}

// Digits beyond those that a 64-bit integer surely holds only move the point.
struct Mantissa {
    std::uint64_t digits = 0;
    std::int64_t exponent = 0;

    void append(char digit, bool fraction) {
        const bool kept = digits < 100'000'000'000'000'000U;
        if (kept) {
            digits = digits * 10 + digitValue(digit);
        }
        exponent += (kept ? 0 : 1) - (fraction ? 1 : 0);
    }
};

struct Exponent {
    std::int64_t value = 0;
    std::size_t length = 0;
};

Exponent scanExponent(std::string_view text) {
    if (text.empty() || (text[0] | 0x20) != 'e') {
        return {};
    }
    constexpr std::int64_t bound = std::int64_t{1} << 40; // more than any text has digits
    const std::size_t begin = 1 + signLength(text.substr(1));
    std::size_t end = begin;
    std::int64_t value = 0;
    for (; end < text.size() && isDigit(text[end]); ++end) {
        value = std::min(bound, value * 10 + (text[end] - '0'));
    }
    if (end == begin) {
        return {};
    }
    return {text[1] == '-' ? -value : value, end};
}

// The powers of ten that a double holds exactly.
constexpr auto powersOfTen = [] {
    std::array<double, 23> powers{1};
    for (std::size_t exponent = 1; exponent < powers.size(); ++exponent) {
        powers[exponent] = powers[exponent - 1] * 10;
    }
    return powers;
}();

double powerOfTen(std::uint64_t exponent) {
    return exponent < powersOfTen.size() ? powersOfTen[exponent]
                                         : std::pow(10.0, static_cast<double>(exponent));
}

// Both operands are exact, so the result is rounded once, for every number of everyday size.
double scaled(std::uint64_t digits, std::int64_t exponent) {
    if (digits == 0) {
        return 0;
    }
    const auto value = static_cast<double>(digits);
    const double power = powerOfTen(static_cast<std::uint64_t>(std::abs(exponent)));
    return exponent < 0 ? value / power : value * power;
}

} // namespace

Decimal scanDecimal(std::string_view text) {
    const std::size_t begin = signLength(text);
    std::size_t end = begin;
    std::size_t digitCount = 0;
    bool fraction = false;
    Mantissa mantissa;
    for (; end < text.size(); ++end) {
        if (isDigit(text[end])) {
            mantissa.append(text[end], fraction);
            ++digitCount;
        } else if (text[end] == '.' && !fraction) {
            fraction = true;
        } else {
            break;
        }
    }
    if (digitCount == 0) {
        return {};
    }
    const Exponent exponent = scanExponent(text.substr(end));
    const double magnitude = scaled(mantissa.digits, mantissa.exponent + exponent.value);
    return {text[0] == '-' ? -magnitude : magnitude, end + exponent.length};
}

std::optional<double> integerValue(std::string_view text) {
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    text.remove_prefix(signLength(text));
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    text.remove_prefix(hexadecimal ? 2 : 0);
    const std::uint64_t base = hexadecimal ? 16 : 10;
    const std::uint64_t limit =
        negative ? std::uint64_t{1} << 63 : std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t largestMultiplied = hexadecimal ? limit / 16 : limit / 10;
    std::uint64_t magnitude = 0;
    for (const char character : text) {
        const std::uint64_t digit = digitValue(character);
        if (digit >= base || magnitude > largestMultiplied || magnitude * base > limit - digit) {
            return std::nullopt;
        }
        magnitude = magnitude * base + digit;
    }
    if (text.empty()) {
        return std::nullopt;
    }
    return negative ? -static_cast<double>(magnitude) : static_cast<double>(magnitude);
}

std::optional<double> realValue(std::string_view text) {
    text = trimmed(text);
    const Decimal decimal = scanDecimal(text);
    if (!text.empty() && decimal.length == text.size()) {
        return decimal.value;
    }
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (text == "nan") {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (text == "infinity" || text == "+infinity" || text == "inf" || text == "+inf") {
        return infinity;
    }
    if (text == "-infinity" || text == "-inf") {
        return -infinity;
    }
    return std::nullopt;
}

} // namespace wentra::preferences
