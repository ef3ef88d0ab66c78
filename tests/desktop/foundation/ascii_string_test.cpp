// Strings of bytes: they give out what GNUstep says each unit is.
#include "desktop/foundation/ascii_string.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/boundary.hpp"
#include "bindings/objc/pool.hpp"
#include "tests/support/own_process.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <random>

namespace {

class AsciiStrings : public testing::Test {
protected:
    static void SetUpTestSuite() { desktop::foundation::installAsciiStrings(); }

    objc::Pool pool;
};

/// One by one.
std::u16string unitsIn(ns::String text, ns::Range range) {
    std::u16string units;
    for (unsigned long place = range.location; place < range.location + range.length; ++place) {
        units += text.send<"characterAtIndex:", char16_t>(place);
    }
    return units;
}

std::u16string charactersIn(ns::String text, ns::Range range) {
    std::u16string units(range.length, u'?');
    text.getCharacters(units.data(), range);
    return units;
}

ns::String fromNextStep(std::string_view bytes) {
    constexpr unsigned long nextStep = 2;
    return ns::String::make<"initWithBytes:length:encoding:">(
        static_cast<const void*>(bytes.data()), static_cast<unsigned long>(bytes.size()), nextStep);
}

void expectSameUnits(ns::String text, std::mt19937& random) {
    const unsigned long length = text.length();
    const unsigned long start = random() % (length + 1);
    for (const ns::Range range : {ns::Range{0, length},
                                  {start, length - start},
                                  {start, random() % (length - start + 1)}}) {
        EXPECT_EQ(charactersIn(text, range), unitsIn(text, range)) << range.location;
    }
}

TEST_F(AsciiStrings, GiveOutTheirUnits) {
    std::mt19937 random(5); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    for (unsigned length = 0; length < 300; ++length) {
        std::string bytes(length, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(random() % 0x80);
        }
        const ns::String text = ns::String::fromUtf8(bytes);
        expectSameUnits(text, random);
        EXPECT_EQ(text.utf16(), std::u16string(bytes.begin(), bytes.end()));
        const auto rest = text.send<"substringFromIndex:", ns::String>(random() % (length + 1UL));
        expectSameUnits(rest, random);
        expectSameUnits(ns::MutableString::make<"initWithString:">(text), random);
    }
}

/// Where this is GNUstep's own encoding, it keeps the letters as they come.
void expectNextStepLetters() {
    for (std::size_t place = 0; place < 200; ++place) {
        std::string bytes(200, 'x');
        std::u16string units(200, u'x');
        bytes[place] = '\xE9';
        units[place] = u'Ø';
        EXPECT_EQ(fromNextStep(bytes).utf16(), units);
    }
}

TEST_F(AsciiStrings, LeaveOtherBytesToTheConverter) {
    setenv("GNUSTEP_STRING_ENCODING", "NSNEXTSTEPStringEncoding", 1);
    tests::inProcessOfItsOwn(&expectNextStepLetters);
    unsetenv("GNUSTEP_STRING_ENCODING");
}

TEST_F(AsciiStrings, GiveOutLongTexts) {
    const std::string bytes(8'000'001, 'a');
    EXPECT_EQ(ns::String::fromUtf8(bytes).utf16(), std::u16string(bytes.size(), u'a'));
}

/// The exception's name; empty without one.
std::string nameOfRaised(ns::String text, ns::Range range) {
    char16_t buffer[8];
    try {
        text.getCharacters(buffer, range);
    } catch (...) {
        return objc::describeCurrentException().name;
    }
    return {};
}

TEST_F(AsciiStrings, RaiseForUnitsThatTheyHaveNot) {
    constexpr unsigned long huge = std::numeric_limits<unsigned long>::max();
    const auto text = ns::String::fromUtf8("abc");
    for (const ns::Range range :
         {ns::Range{4, 0}, {0, 4}, {3, 1}, {huge, 1}, {1, huge}, {huge, huge}}) {
        EXPECT_EQ(nameOfRaised(text, range), "NSRangeException") << range.location;
    }
    EXPECT_EQ(nameOfRaised(text, {3, 0}), "");
    EXPECT_EQ(nameOfRaised(ns::String::fromUtf8(""), {0, 0}), "");
}

} // namespace
