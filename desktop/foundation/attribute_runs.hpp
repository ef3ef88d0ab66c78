// The attributes of a text's units.
#pragma once

#include "bindings/foundation/dictionary.hpp"

#include <functional>
#include <utility>
#include <vector>

namespace desktop::foundation {

/// Stretches of units that share a dictionary, each as long as it can be. Ranges must lie within
/// the text. To set one stretch after the other in the text's order costs the same for each,
/// however many there are.
class AttributeRuns {
public:
    AttributeRuns() = default;
    /// So many units with the same attributes; nil stands for none.
    AttributeRuns(ns::Dictionary attributes, std::size_t length) { append(attributes, length); }

    [[nodiscard]] std::size_t length() const { return runs_.empty() ? 0 : runs_.back().end; }

    struct Stretch {
        ns::Dictionary attributes;
        ns::Range range;
    };
    /// The one that holds the unit.
    [[nodiscard]] Stretch at(std::size_t unit) const;
    [[nodiscard]] AttributeRuns part(ns::Range range) const;
    /// What text gets that is written in place of the range: the attributes of the first unit that
    /// is replaced, or else of the one before, or else of the one behind.
    [[nodiscard]] ns::Dictionary inheritedBy(ns::Range range) const;

    void append(ns::Dictionary attributes, std::size_t length);
    void set(ns::Dictionary attributes, ns::Range range);
    /// Makes the attributes of runs that will replace the range those of this text, for which
    /// objects are compared, which may raise.
    void adopt(AttributeRuns& other, ns::Range range);
    /// By runs that have been adopted.
    void replace(ns::Range range, AttributeRuns other);
    /// Asks once for each dictionary of the range what shall be in its place.
    void change(ns::Range range,
                const std::function<objc::Strong<ns::Dictionary>(ns::Dictionary)>& changed);

private:
    struct Run {
        std::size_t end;
        ns::Dictionary attributes; ///< one of `kept_`
    };

    [[nodiscard]] std::size_t startOf(std::size_t index) const {
        return index == 0 ? 0 : runs_[index - 1].end;
    }
    [[nodiscard]] std::size_t indexOf(std::size_t unit) const;
    [[nodiscard]] auto place(std::size_t index) {
        return runs_.begin() + static_cast<std::ptrdiff_t>(index);
    }
    std::size_t cut(std::size_t unit);
    std::pair<std::size_t, std::size_t> isolate(ns::Range range);
    void join(std::size_t first, std::size_t end);
    ns::Dictionary keep(ns::Dictionary attributes);
    void forgetUnused();

    std::vector<Run> runs_;
    /// Owns what the runs refer to: a run by itself costs no references.
    std::vector<objc::Strong<ns::Dictionary>> kept_;
};

} // namespace desktop::foundation
