// The simplex method over priorities.
#include "desktop/uikit/constraints/linear_solver.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <optional>

namespace desktop {
namespace {

constexpr double tiny = 1e-9;
/// Two layouts that differ by less, in points, are the same.
constexpr double tolerance = 1e-5;

/// Rows are equations: the row's basic variable, plus coefficients times the other variables, is
/// the row's value. Columns are first the given variables, which may be negative, then for each
/// constraint what it exceeds and what it falls short, which may not.
class Tableau {
public:
    Tableau(const std::vector<double>& initial, std::span<const LinearConstraint> constraints)
        : free_(initial.size()), columns_(free_ + 2 * constraints.size()), inBasis_(columns_) {
        std::map<double, std::vector<double>, std::greater<>> costs;
        for (std::size_t index = 0; index < constraints.size(); ++index) {
            addRow(initial, constraints[index], index);
            auto& cost = costs[constraints[index].priority];
            cost.resize(columns_);
            const Relation relation = constraints[index].relation;
            cost[excess(index)] = relation == Relation::greaterOrEqual ? 0 : 1;
            cost[shortage(index)] = relation == Relation::lessOrEqual ? 0 : 1;
        }
        for (auto& [priority, cost] : costs) {
            costs_.push_back(std::move(cost));
        }
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            price(row);
        }
    }

    void minimise() {
        // Choosing the first column that helps never cycles; the bound is for rounding errors.
        const std::size_t most = 50 * (columns_ + 1);
        for (std::size_t step = 0; step < most; ++step) {
            const auto entering = improving();
            if (!entering) {
                return;
            }
            const auto [column, direction] = *entering;
            const auto row = leaving(column, direction);
            if (!row) {
                return; // nothing stops it: no constraint has an opinion
            }
            pivot(*row, column);
        }
    }

    [[nodiscard]] std::vector<double> values(std::vector<double> initial) const {
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            if (basis_[row] < free_) {
                initial[basis_[row]] += rows_[row].value;
            }
        }
        return initial;
    }

private:
    struct Row {
        std::vector<double> coefficients;
        double value = 0;
    };
    struct Entering {
        std::size_t column;
        double direction; ///< the variable grows (1) or shrinks (-1)
    };

    [[nodiscard]] std::size_t excess(std::size_t index) const { return free_ + 2 * index; }
    [[nodiscard]] std::size_t shortage(std::size_t index) const { return excess(index) + 1; }

    void addRow(const std::vector<double>& initial, const LinearConstraint& constraint,
                std::size_t index) {
        Row row;
        row.coefficients.resize(columns_);
        row.value = -constraint.expression.constant;
        for (const auto& [variable, coefficient] : constraint.expression.terms) {
            row.coefficients[variable] += coefficient;
            row.value -= coefficient * initial[variable]; // variables count from where they are
        }
        row.coefficients[excess(index)] = -1;
        row.coefficients[shortage(index)] = 1;
        std::size_t basic = shortage(index);
        if (row.value < 0) {
            basic = excess(index);
            row.value = -row.value;
            for (double& coefficient : row.coefficients) {
                coefficient = -coefficient;
            }
        }
        inBasis_[basic] = true;
        basis_.push_back(basic);
        rows_.push_back(std::move(row));
    }

    /// Takes the row's basic variable out of the costs.
    void price(std::size_t row) {
        for (auto& cost : costs_) {
            if (const double factor = cost[basis_[row]]; factor != 0) {
                for (std::size_t column = 0; column < columns_; ++column) {
                    cost[column] -= factor * rows_[row].coefficients[column];
                }
                cost[basis_[row]] = 0;
            }
        }
    }

    /// What the column costs: the sign of the cost of the highest priority that has one.
    [[nodiscard]] double slope(std::size_t column) const {
        for (const auto& cost : costs_) {
            if (std::abs(cost[column]) > tiny) {
                return cost[column];
            }
        }
        return 0;
    }

    [[nodiscard]] std::optional<Entering> improving() const {
        for (std::size_t column = 0; column < columns_; ++column) {
            if (inBasis_[column]) {
                continue;
            }
            const double cost = slope(column);
            if (cost < 0 || (cost > 0 && column < free_)) {
                return Entering{column, cost < 0 ? 1.0 : -1.0};
            }
        }
        return std::nullopt;
    }

    /// The row whose basic variable reaches 0 first.
    [[nodiscard]] std::optional<std::size_t> leaving(std::size_t column, double direction) const {
        std::optional<std::size_t> best;
        double least = std::numeric_limits<double>::infinity();
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            const double coefficient = rows_[row].coefficients[column] * direction;
            if (basis_[row] < free_ || coefficient <= tiny) {
                continue;
            }
            const double ratio = rows_[row].value / coefficient;
            if (ratio < least - tiny ||
                (ratio < least + tiny && best && basis_[row] < basis_[*best])) {
                least = std::min(least, ratio);
                best = row;
            }
        }
        return best;
    }

    void pivot(std::size_t pivotRow, std::size_t column) {
        Row& chosen = rows_[pivotRow];
        const double divisor = chosen.coefficients[column];
        for (double& coefficient : chosen.coefficients) {
            coefficient /= divisor;
        }
        chosen.value /= divisor;
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            const double factor = rows_[row].coefficients[column];
            if (row == pivotRow || factor == 0) {
                continue;
            }
            for (std::size_t at = 0; at < columns_; ++at) {
                rows_[row].coefficients[at] -= factor * chosen.coefficients[at];
            }
            rows_[row].coefficients[column] = 0;
            rows_[row].value -= factor * chosen.value;
        }
        inBasis_[basis_[pivotRow]] = false;
        inBasis_[column] = true;
        basis_[pivotRow] = column;
        price(pivotRow);
    }

    std::size_t free_;
    std::size_t columns_;
    std::vector<bool> inBasis_;
    std::vector<Row> rows_;
    std::vector<std::size_t> basis_;         // the basic variable of each row
    std::vector<std::vector<double>> costs_; // by priority, the highest first
};

bool holds(const LinearConstraint& constraint, const std::vector<double>& values) {
    double sum = constraint.expression.constant;
    for (const auto& [variable, coefficient] : constraint.expression.terms) {
        sum += coefficient * values[variable];
    }
    switch (constraint.relation) {
    case Relation::lessOrEqual:
        return sum <= tolerance;
    case Relation::greaterOrEqual:
        return sum >= -tolerance;
    default:
        return std::abs(sum) <= tolerance;
    }
}

} // namespace

void LinearExpression::add(const LinearExpression& other, double factor) {
    for (const Term& term : other.terms) {
        terms.push_back({term.variable, factor * term.coefficient});
    }
    constant += factor * other.constant;
}

LinearSolution solve(std::vector<double> initial, std::span<const LinearConstraint> constraints) {
    Tableau tableau(initial, constraints);
    tableau.minimise();
    LinearSolution solution{tableau.values(std::move(initial)), {}};
    for (const LinearConstraint& constraint : constraints) {
        solution.holds.push_back(holds(constraint, solution.values));
    }
    return solution;
}

} // namespace desktop
