// Solves linear constraints of different priorities.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace desktop {

enum class Relation : long { lessOrEqual = -1, equal = 0, greaterOrEqual = 1 };

/// The sum of coefficient times variable, and a constant.
struct LinearExpression {
    struct Term {
        std::size_t variable;
        double coefficient;
    };
    std::vector<Term> terms;
    double constant = 0;

    void add(const LinearExpression& other, double factor = 1);
};

/// `expression` is to be less than, equal to or greater than 0.
struct LinearConstraint {
    LinearExpression expression;
    Relation relation = Relation::equal;
    double priority = 0;
};

struct LinearSolution {
    std::vector<double> values;
    /// For each constraint, whether it holds.
    std::vector<bool> holds;
};

/// Values that break constraints as little as possible: those of a higher priority are never broken
/// for any number of lower ones, and among equals the sum of what they miss is least. Variables
/// that nothing decides keep their initial values. Plain C++; every number must be finite.
///
/// It is the simplex method, with a cost for each priority that outweighs all lower ones. The time
/// grows with the cube of the number of constraints: hundreds are solved at once.
[[nodiscard]] LinearSolution solve(std::vector<double> initial,
                                   std::span<const LinearConstraint> constraints);

} // namespace desktop
