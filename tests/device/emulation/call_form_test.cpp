// How values travel, by their encodings.
#include "device/emulation/call_form.hpp"
#include "device/emulation/refusal.hpp"
#include "device/emulation/stub_code.hpp"
#include "device/emulation/value_shape.hpp"

#include <gtest/gtest.h>

namespace {

using emulation::callForm;
using emulation::NarrowArgument;
using emulation::Refusal;
using emulation::shapesOf;
using emulation::ValueShape;
using emulation::Widening;

TEST(ValueShape, IsReadFromTheEncoding) {
    for (const auto& [type, shape] : std::vector<std::pair<const char*, ValueShape>>{
             {"v", {0, 1, 'v', 0}},
             {"B", {1, 1, 'B', 0}},
             {"s", {2, 2, 's', 0}},
             {"rq16", {8, 8, 'q', 0}},
             {"d", {8, 8, 'd', 1}},
             {"@\"NSString\"", {8, 8, '@', 0}},
             {"@?", {8, 8, '@', 0}},
             {"^{unknown}", {8, 8, '^', 0}},
             {"^^{a=[3{b=(c=id)}]}", {8, 8, '^', 0}},
             {"^?", {8, 8, '^', 0}},
             {"{P=dd}", {16, 8, '{', 2}},
             {"{R={P=dd}{S=dd}}", {32, 8, '{', 4}},
             {"{T=dddddd}", {48, 8, '{', 6}},
             {"{_NSRange=QQ}", {16, 8, '{', 0}},
             {R"({mixed="one"f"two"d})", {16, 8, '{', 0}},
             {"{padded=cqc}", {24, 8, '{', 0}},
             {"{small=ccs}", {4, 2, '{', 0}},
             {"{array=[3f]}", {12, 4, '{', 3}},
             {"(either=dQ)", {8, 8, '(', 0}},
         }) {
        EXPECT_EQ(shapesOf(type), std::vector{shape}) << type;
    }
}

TEST(ValueShape, OfEachTypeOfAMethod) {
    const auto shapes = shapesOf("v40@0:8{P=dd}16B32");
    ASSERT_EQ(shapes.size(), 5U);
    EXPECT_EQ(shapes[3].floats, 2U);
    EXPECT_EQ(shapes[4].size, 1U);
}

TEST(ValueShape, OfUnknownSizeIsRefused) {
    for (const char* types : {"{unknown}", "v@:{unknown}{P=dd}", "{cut=d", "b3", "D", "[3", "[d]",
                              "[99999999999d]", "@\"x"}) {
        EXPECT_THROW(static_cast<void>(shapesOf(types)), Refusal) << types;
    }
}

using Narrow = std::vector<NarrowArgument>;

TEST(CallForm, TellsTheRegistersOfSmallIntegers) {
    EXPECT_EQ(callForm("v@:B").narrowArguments, (Narrow{{2, Widening::unsignedByte}}));
    EXPECT_EQ(callForm("v@:dcqS").narrowArguments,
              (Narrow{{2, Widening::signedByte}, {4, Widening::unsignedHalf}}))
        << "numbers with fractions have registers of their own";
    EXPECT_EQ(callForm("v@:{R={P=dd}{S=dd}}s").narrowArguments,
              (Narrow{{2, Widening::signedHalf}}));
    EXPECT_EQ(callForm("v@:{_NSRange=QQ}B").narrowArguments, (Narrow{{4, Widening::unsignedByte}}));
    EXPECT_EQ(callForm("v@:{T=dddddd}B").narrowArguments, (Narrow{{3, Widening::unsignedByte}}))
        << "large structures are passed by their address";
    EXPECT_EQ(callForm("v@:iId").narrowArguments, Narrow{});
}

TEST(CallForm, TellsWhatTheResultLacks) {
    EXPECT_EQ(callForm("B@:").result, Widening::unsignedByte);
    EXPECT_EQ(callForm("C@:").result, Widening::unsignedByte);
    EXPECT_EQ(callForm("c@:").result, Widening::signedByte);
    EXPECT_EQ(callForm("S@:").result, Widening::unsignedHalf);
    EXPECT_EQ(callForm("s@:").result, Widening::signedHalf);
    EXPECT_EQ(callForm("i@:").result, Widening::none);
    EXPECT_EQ(callForm("").result, Widening::none);
}

TEST(CallForm, TellsWhatLiesOnTheStack) {
    EXPECT_EQ(callForm("v@:qqqqqq").stackSize, 0U);
    EXPECT_EQ(callForm("v@:qqqqqqqq").stackSize, 16U);
    EXPECT_EQ(callForm("v@:dddddddd").stackSize, 0U);
    EXPECT_EQ(callForm("v@:ddddddddd").stackSize, 8U);
    EXPECT_EQ(callForm("v@:qqqqq{_NSRange=QQ}q").stackSize, 24U)
        << "one register is left, which nobody gets then";
    EXPECT_EQ(callForm("v@:ddddd{R={P=dd}{S=dd}}d").stackSize, 40U);
    EXPECT_EQ(callForm("v@:qqqqqqqB").narrowArguments, Narrow{}) << "not in a register";
}

TEST(CallForm, TellsWhereThePhonePacks) {
    EXPECT_FALSE(callForm("v@:qqqqqqqqd").isPackedOnStack);
    EXPECT_TRUE(callForm("v@:qqqqqqB").isPackedOnStack);
    EXPECT_TRUE(callForm("v@:qqqqqqi").isPackedOnStack);
    EXPECT_TRUE(callForm("v@:ddddddddf").isPackedOnStack);
    EXPECT_TRUE(callForm("v@:dddddddd{three=fff}").isPackedOnStack);
}

using Code = std::vector<std::uint32_t>;

TEST(StubCode, WidensEachArgumentInItsRegister) {
    EXPECT_EQ(emulation::wideningCode({{2, Widening::unsignedByte}, {3, Widening::signedByte}},
                                      0x1122334455667788),
              (Code{0x53001C42, 0x13001C63, 0x58000050, 0xD61F0200, 0x55667788, 0x11223344}));
    EXPECT_EQ(emulation::wideningCode({{4, Widening::unsignedHalf}}, 8),
              (Code{0x53003C84, 0xD503201F, 0x58000050, 0xD61F0200, 8, 0}));
    EXPECT_EQ(emulation::wideningCode({{7, Widening::signedHalf}}, 8).front(), 0x13003CE7U);
}

TEST(StubCode, LeavesTheFunctionToItsCaller) {
    EXPECT_EQ(emulation::callingCode(0x10, 0x20),
              (Code{0x58000090, 0x580000B1, 0xD61F0220, 0xD503201F, 0x20, 0, 0x10, 0}));
}

} // namespace
