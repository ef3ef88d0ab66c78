// Values between the host and a library, through registers and the stack.
#include "tests/host/borders/host_with_borders.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace {

using tests::HostWithBorders;
using tests::Json;

class PassingValues : public testing::Test {
protected:
    HostWithBorders host;
    Json gate = host.message({{"class", "Gate"}}, "gate");
    Json carrier = host.message({{"class", "Carrier"}}, "new");
};

/// What is left in a register above a small integer must not matter: here it is never what the
/// integer would be widened to.
struct Small {
    const char* kind;
    long bits;
    long number;
};
constexpr Small smalls[] = {
    {"Flag:", 0x1234'5678'9ABC'DE00, 0},
    {"Flag:", 0x1234'5678'9ABC'DE01, 1},
    {"SignedByte:", 0x1234'5678'9ABC'DE07, 7},
    {"SignedByte:", 0x1234'5678'9ABC'DEF9, -7},
    {"UnsignedByte:", 0x1234'5678'9ABC'DEF9, 0xF9},
    {"SignedHalf:", 0x1234'5678'9ABC'0007, 7},
    {"SignedHalf:", 0x1234'5678'9ABC'FFF9, -7},
    {"UnsignedHalf:", 0x1234'5678'9ABC'FFF9, 0xFFF9},
};

TEST_F(PassingValues, SmallArgumentsAreReadFromTheirBitsAlone) {
    for (const auto& [kind, bits, number] : smalls) {
        const Json name{{"selector", std::string("take") + kind}};
        EXPECT_EQ(host.message(gate, "ask:of:with:", {name, carrier, bits}), number) << kind;
    }
    EXPECT_EQ(host.message(carrier, "takeInBlocks:", {0x1234'5678'9ABC'DEF9}), -7);
    for (const char* replaced : {"takeThroughHook:", "takeThroughExchange:"}) {
        EXPECT_EQ(host.message(gate, "ask:of:with:",
                               {{{"selector", replaced}}, gate, 0x1234'5678'9ABC'DEF9}),
                  -707)
            << replaced;
    }
}

TEST_F(PassingValues, SmallResultsAreReadFromTheirBitsAlone) {
    for (const auto& [kind, bits, number] : smalls) {
        EXPECT_EQ(host.message(carrier, std::string("get") + kind, {bits}), number) << kind;
    }
    for (const char* way : {"getThroughHook:", "getThroughExchange:"}) {
        EXPECT_EQ(host.message(carrier, way, {0x1234'5678'9ABC'DEF9}), -7) << way;
    }
}

TEST_F(PassingValues, StructuresOfNumbersStayWhole) {
    EXPECT_EQ(
        host.message(carrier, "moved:by:", {{{"rect", {1.5, 2, 30, 40}}}, {{"point", {0.25, -4}}}}),
        Json({{"rect", {1.75, -2.0, 30.0, 40.0}}}));
    EXPECT_EQ(host.message(carrier, "exchanged:", {{{"transform", {1, 2, 3, 4, 5, 6}}}}),
              Json({{"transform", {4.0, 3.0, 2.0, 1.0, 6.0, 5.0}}}))
        << "too large for registers";
}

TEST_F(PassingValues, StructuresOfIntegersStayWhole) {
    EXPECT_EQ(host.message(carrier, "grown:twice:", {{{"range", {5, 3}}}, true}),
              Json({{"range", {5, 12}}}));
    EXPECT_EQ(host.message(carrier, "grown:twice:", {{{"range", {5, 3}}}, false}),
              Json({{"range", {5, 6}}}));
}

TEST_F(PassingValues, StructuresThatFindNoRegistersStayWhole) {
    EXPECT_EQ(
        host.message(
            carrier, "last:and:and:",
            {{{"rect", {1, 2, 3, 4}}}, {{"rect", {5, 6, 7, 8}}}, {{"rect", {9, 10, 11, 12}}}}),
        Json({{"rect", {9.0, 10.0, 11.0, 12.0}}}));
}

TEST_F(PassingValues, StructuresThatFillTheStackStayWhole) {
    const auto alike = [&](int last) {
        return host.message(carrier, "alike::::",
                            {{{"rect", {1, 2, 3, 4}}},
                             {{"rect", {5, 6, 7, 8}}},
                             {{"rect", {9, 10, 11, 12}}},
                             {{"rect", {9, 10, 11, last}}}});
    };
    EXPECT_EQ(alike(12), true);
    EXPECT_EQ(alike(13), false);
}

TEST_F(PassingValues, AreZeroFromNobody) {
    EXPECT_EQ(host.message(carrier, "movedByNobody:by:",
                           {{{"rect", {1.5, 2, 30, 40}}}, {{"point", {0.25, -4}}}}),
              Json({{"rect", {0.0, 0.0, 0.0, 0.0}}}));
    EXPECT_EQ(host.message(carrier, "grownByNobody:twice:", {{{"range", {5, 3}}}, true}),
              Json({{"range", {0, 0}}}));
}

TEST_F(PassingValues, NumbersThatAreNoneStayAsTheyAre) {
    using Limits = std::numeric_limits<double>;
    for (const double number : {0.0, 1.5, Limits::infinity(), -Limits::infinity(),
                                Limits::quiet_NaN(), Limits::denorm_min(), Limits::max()}) {
        EXPECT_EQ(host.message(carrier, "negated:", {std::bit_cast<unsigned long>(number)}),
                  std::bit_cast<unsigned long>(-number))
            << number;
        const auto single = static_cast<float>(number);
        EXPECT_EQ(host.message(carrier, "negatedSingle:", {std::bit_cast<unsigned>(single)}),
                  std::bit_cast<unsigned>(-single))
            << number;
    }
}

TEST_F(PassingValues, MoreArgumentsThanRegistersAllArrive) {
    EXPECT_EQ(host.message(carrier, "digits:::::::::", {1, 2, 3, 4, 5, 6, 7, 8, 9}), 123456789);
    EXPECT_EQ(host.message(carrier, "fractions::::::::::", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
              1 + 2 / 2.0 + 3 / 4.0 + 4 / 8.0 + 5 / 16.0 + 6 / 32.0 + 7 / 64.0 + 8 / 128.0 +
                  9 / 256.0 + 10 / 512.0);
    EXPECT_EQ(host.message(carrier, "rise:::::::::", {1, 2, 3, 4, 5, 6, 7, 8, 9}), true);
    EXPECT_EQ(host.message(carrier, "rise:::::::::", {1, 2, 3, 4, 5, 6, 7, 8, 8}), false);
}

} // namespace
