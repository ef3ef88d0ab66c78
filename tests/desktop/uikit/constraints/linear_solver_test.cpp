// Constraints of different priorities.
#include "desktop/uikit/constraints/linear_solver.hpp"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace desktop;

using Terms = std::vector<LinearExpression::Term>;

constexpr auto less = Relation::lessOrEqual;
constexpr auto same = Relation::equal;
constexpr auto more = Relation::greaterOrEqual;

/// The sum of the terms against a number.
LinearConstraint that(Terms terms, Relation relation, double value, double priority = 1000) {
    return {{std::move(terms), -value}, relation, priority};
}

TEST(LinearSolver, EquationsDecideAndTheRestStays) {
    const std::vector constraints{that({{0, 1}}, same, 20), that({{1, 1}, {0, -2}}, same, 5)};
    const auto solution = solve({1, 2, 3}, constraints);
    EXPECT_NEAR(solution.values[0], 20, 1e-9);
    EXPECT_NEAR(solution.values[1], 45, 1e-9);
    EXPECT_EQ(solution.values[2], 3);
}

TEST(LinearSolver, BoundsHoldAndNegativeValuesArePossible) {
    const std::vector constraints{that({{0, 1}}, more, 10), that({{0, 1}}, less, 30),
                                  that({{0, 1}}, same, 50, 250), that({{1, 1}}, less, -7)};
    const auto solution = solve({0, 0}, constraints);
    EXPECT_NEAR(solution.values[0], 30, 1e-9);
    EXPECT_NEAR(solution.values[1], -7, 1e-9);
    EXPECT_EQ(solution.holds, (std::vector{true, true, false, true}));
}

TEST(LinearSolver, AHigherPriorityOutweighsAnyNumberOfLowerOnes) {
    std::vector constraints{that({{0, 1}}, same, 100, 251)};
    for (int count = 0; count < 20; ++count) {
        constraints.push_back(that({{0, 1}}, same, 0, 250));
    }
    EXPECT_NEAR(solve({0}, constraints).values[0], 100, 1e-9);
}

TEST(LinearSolver, AConflictBreaksTheWeakest) {
    // Two boxes in 100 points: each wants 80, the first one more so.
    const std::vector constraints{that({{0, 1}, {1, 1}}, same, 100), that({{0, 1}}, same, 80, 750),
                                  that({{1, 1}}, same, 80, 500)};
    const auto solution = solve({0, 0}, constraints);
    EXPECT_NEAR(solution.values[0], 80, 1e-9);
    EXPECT_NEAR(solution.values[1], 20, 1e-9);
    EXPECT_EQ(solution.holds, (std::vector{true, true, false}));
    const std::vector impossible{that({{0, 1}}, same, 10), that({{0, 1}}, same, 20)};
    const auto broken = solve({0}, impossible);
    EXPECT_NE(broken.holds[0], broken.holds[1]) << "one of the two holds";
}

TEST(LinearSolver, ManyRandomConstraintsWithASolutionAllHold) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> any(-20, 20);
    for (int round = 0; round < 40; ++round) {
        constexpr std::size_t variables = 8;
        std::vector<double> hidden;
        for (std::size_t index = 0; index < variables; ++index) {
            hidden.push_back(any(random));
        }
        std::vector<LinearConstraint> constraints;
        for (int index = 0; index < 20; ++index) {
            Terms terms;
            double sum = 0;
            for (std::size_t variable = 0; variable < variables; ++variable) {
                const double coefficient = any(random) % 3;
                terms.push_back({variable, coefficient});
                sum += coefficient * hidden[variable];
            }
            const auto relation = static_cast<Relation>(any(random) % 2);
            const double slack = static_cast<double>(relation) * (any(random) + 20);
            constraints.push_back(that(terms, relation, sum - slack));
        }
        const auto solution = solve(std::vector<double>(variables), constraints);
        EXPECT_EQ(solution.holds, std::vector<bool>(20, true)) << round;
    }
}

} // namespace
