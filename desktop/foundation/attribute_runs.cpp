// Finds runs by their ends, cuts them where a range begins and ends, and joins those that are
// alike.
#include "desktop/foundation/attribute_runs.hpp"

#include <algorithm>
#include <span>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace desktop::foundation {

std::size_t AttributeRuns::indexOf(std::size_t unit) const {
    // Most texts get their attributes from the start to the end.
    if (unit >= startOf(runs_.size() - 1)) {
        return runs_.size() - 1;
    }
    const auto found = std::ranges::upper_bound(runs_, unit, {}, &Run::end);
    return static_cast<std::size_t>(found - runs_.begin());
}

AttributeRuns::Stretch AttributeRuns::at(std::size_t unit) const {
    const std::size_t index = indexOf(unit);
    const std::size_t start = startOf(index);
    return {runs_[index].attributes, {start, runs_[index].end - start}};
}

AttributeRuns AttributeRuns::part(ns::Range range) const {
    AttributeRuns part;
    const std::size_t end = range.location + range.length;
    for (std::size_t unit = range.location; unit < end;) {
        const Stretch stretch = at(unit);
        const std::size_t next = std::min(stretch.range.location + stretch.range.length, end);
        part.append(stretch.attributes, next - unit);
        unit = next;
    }
    return part;
}

ns::Dictionary AttributeRuns::inheritedBy(ns::Range range) const {
    if (runs_.empty()) {
        return nullptr;
    }
    const bool isBehind = range.length == 0 && range.location > 0;
    return at(range.location - (isBehind ? 1 : 0)).attributes;
}

void AttributeRuns::append(ns::Dictionary attributes, std::size_t length) {
    if (length == 0) {
        return;
    }
    const std::size_t count = runs_.size();
    runs_.push_back({this->length() + length, keep(attributes)});
    join(std::max<std::size_t>(count, 1) - 1, count + 1);
}

void AttributeRuns::set(ns::Dictionary attributes, ns::Range range) {
    if (range.length == 0) {
        return;
    }
    const ns::Dictionary kept = keep(attributes);
    const auto [first, end] = isolate(range);
    runs_[end - 1].attributes = kept;
    runs_.erase(place(first), place(end - 1));
    join(std::max<std::size_t>(first, 1) - 1, std::min(first + 2, runs_.size()));
    forgetUnused();
}

void AttributeRuns::adopt(AttributeRuns& other, ns::Range range) {
    if (range.length < length()) {
        for (Run& run : other.runs_) {
            run.attributes = keep(run.attributes);
        }
    }
}

void AttributeRuns::replace(ns::Range range, AttributeRuns other) {
    if (range.length == length()) {
        for (const objc::Strong<ns::Dictionary>& one : kept_) {
            static_cast<void>(one.autoreleased()); // who has just asked for it may look at it
        }
        *this = std::move(other);
        return;
    }
    const auto [first, end] = isolate(range);
    const std::size_t more = other.length() - range.length; // may wrap: it is added again
    std::for_each(place(end), runs_.end(), [more](Run& run) { run.end += more; });
    for (Run& run : other.runs_) {
        run.end += range.location;
    }
    runs_.insert(runs_.erase(place(first), place(end)), other.runs_.begin(), other.runs_.end());
    join(std::max<std::size_t>(first, 1) - 1,
         std::min(first + other.runs_.size() + 1, runs_.size()));
    forgetUnused();
}

void AttributeRuns::change(
    ns::Range range, const std::function<objc::Strong<ns::Dictionary>(ns::Dictionary)>& changed) {
    if (range.length == 0) {
        return;
    }
    std::unordered_map<id, ns::Dictionary> later;
    for (std::size_t index = indexOf(range.location);
         index < runs_.size() && startOf(index) < range.location + range.length; ++index) {
        later.try_emplace(runs_[index].attributes.raw());
    }
    // Applications' objects are asked, and may raise, before anything changes.
    for (auto& [former, attributes] : later) {
        attributes = keep(changed(objc::wrap<ns::Dictionary>(former)));
    }
    const auto [first, end] = isolate(range);
    for (std::size_t index = first; index < end; ++index) {
        if (const auto found = later.find(runs_[index].attributes.raw()); found != later.end()) {
            runs_[index].attributes = found->second;
        }
    }
    join(std::max<std::size_t>(first, 1) - 1, std::min(end + 1, runs_.size()));
    forgetUnused();
}

/// The index of the run that begins there; none ends or begins elsewhere for it.
std::size_t AttributeRuns::cut(std::size_t unit) {
    if (unit == length()) {
        return runs_.size();
    }
    const std::size_t index = indexOf(unit);
    if (startOf(index) == unit) {
        return index;
    }
    const Run former{unit, runs_[index].attributes};
    runs_.insert(place(index), former);
    return index + 1;
}

/// The indices between which the runs of the range stand, and nothing of other runs.
std::pair<std::size_t, std::size_t> AttributeRuns::isolate(ns::Range range) {
    const std::size_t end = range.location + range.length;
    const std::size_t index = range.length > 0 ? indexOf(range.location) : runs_.size();
    if (index == runs_.size() || startOf(index) == range.location || end >= runs_[index].end) {
        const std::size_t first = cut(range.location);
        return {first, cut(end)};
    }
    // Both at once: each moves all runs behind.
    const ns::Dictionary attributes = runs_[index].attributes;
    runs_.insert(place(index), {{range.location, attributes}, {end, attributes}});
    return {index + 1, index + 2};
}

/// Makes one of neighbours with the same attributes.
void AttributeRuns::join(std::size_t first, std::size_t end) {
    if (first == end) {
        return;
    }
    std::size_t last = first;
    for (std::size_t index = first + 1; index < end; ++index) {
        const bool isAlike = runs_[index].attributes == runs_[last].attributes;
        runs_[isAlike ? last : ++last] = runs_[index];
    }
    runs_.erase(place(last + 1), place(end));
}

/// A dictionary of our own, which nobody changes: where possible, one that was used lately.
ns::Dictionary AttributeRuns::keep(ns::Dictionary attributes) {
    constexpr std::size_t mostCompared = 8;
    const auto lately = std::span(kept_).last(std::min(kept_.size(), mostCompared));
    if (std::ranges::find(lately, attributes) != lately.end()) {
        return attributes;
    }
    const ns::Dictionary given = attributes ? attributes : ns::MutableDictionary::make();
    const auto equal =
        std::ranges::find_if(lately, [given](ns::Dictionary one) { return one.isEqual(given); });
    return equal != lately.end() ? *equal : kept_.emplace_back(objc::Copied<ns::Dictionary>(given));
}

void AttributeRuns::forgetUnused() {
    constexpr std::size_t fewest = 64;
    if (kept_.size() < fewest + 2 * runs_.size()) {
        return;
    }
    std::unordered_set<id> used;
    for (const Run& run : runs_) {
        used.insert(run.attributes.raw());
    }
    std::erase_if(kept_, [&used](const objc::Strong<ns::Dictionary>& one) {
        // Whoever has just asked for it may still look at it.
        return used.erase(one.autoreleased().raw()) == 0;
    });
}

} // namespace desktop::foundation
