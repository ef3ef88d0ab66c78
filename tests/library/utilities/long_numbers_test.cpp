// Numbers of thirteen digits.
#include "library/utilities/phone_numbers/long_numbers.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using Numbers = std::vector<std::u16string_view>;

struct NumberCase {
    std::u16string_view text;
    Numbers numbers;
};

const NumberCase numberCases[]{
    {u"8613800138000", {u"8613800138000"}},
    {u"1700000000000 1600000000000 1500000000000", {}},
    {u"<string>8613800138000</string>", {u"8613800138000"}},
    {u"861380013800", {}},                   // twelve
    {u"861380013800 0", {}},                 // not together
    {u"86138001380009", {u"8613800138000"}}, // fourteen
    {u"86138001380008613900139000", {u"8613800138000", u"8613900139000"}},
    {u"15000000000008613900139000", {u"8613900139000"}},
    {u"8613800138000,8613900139000,8613800138000", {u"8613800138000", u"8613900139000"}},
    {u"٨٦١٣٨٠٠١٣٨٠٠٠", {u"٨٦١٣٨٠٠١٣٨٠٠٠"}}, // digits of another script
    {u"", {}},
};

TEST(LongNumbers, AreFoundOnceEach) {
    for (const NumberCase& each : numberCases) {
        EXPECT_EQ(wentra::utilities::longNumbers(each.text), each.numbers)
            << std::string(each.text.begin(), each.text.end());
    }
}

TEST(LongNumbers, MayHaveDigitsOfTwoUnits) {
    std::u16string number;
    for (int digit = 0; digit < 13; ++digit) {
        number += u"\U0001D7D8";
    }
    EXPECT_EQ(wentra::utilities::longNumbers(u"x" + number + u"1"), Numbers{number});
}

} // namespace
