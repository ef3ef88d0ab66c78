// Counts digits as they come.
#include "library/utilities/phone_numbers/long_numbers.hpp"

#include "library/common/decimal_digits.hpp"

#include <algorithm>
#include <array>
#include <set>

namespace wentra::utilities {
namespace {

constexpr std::array<std::u16string_view, 3> times{u"15", u"16", u"17"};

bool isTime(std::u16string_view number) {
    return std::ranges::any_of(
        times, [number](std::u16string_view start) { return number.starts_with(start); });
}

} // namespace

std::vector<std::u16string_view> longNumbers(std::u16string_view text) {
    constexpr int length = 13;
    std::vector<std::u16string_view> numbers;
    std::set<std::u16string_view> known;
    int digits = 0;
    std::size_t start = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = decimalDigitSize(text.substr(at));
        at += size == 0 ? 1 : size;
        digits = size == 0 ? 0 : digits + 1;
        start = digits == 0 ? at : start;
        if (digits == length) {
            const std::u16string_view number = text.substr(start, at - start);
            if (!isTime(number) && known.insert(number).second) {
                numbers.push_back(number);
            }
            digits = 0;
            start = at;
        }
    }
    return numbers;
}

} // namespace wentra::utilities
