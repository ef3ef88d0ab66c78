// Building display lists, and telling them apart.
#include "desktop/drawing/display/display_list.hpp"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace desktop {
int DisplayList::addGroup(DisplayGroup group) {
    const PixelRectangle limits = group.parent == DisplayGroup::none
                                      ? screen
                                      : groups[static_cast<std::size_t>(group.parent)].extents;
    group.extents = limits;
    if (group.kind == DisplayGroup::Kind::clip) {
        group.shape = group.shape.onPixels();
        group.extents = pixelsAround(group.shape.bounds(), limits);
    }
    groups.push_back(group);
    return static_cast<int>(groups.size()) - 1;
}

void DisplayList::add(DisplayItem item) {
    const PixelRectangle limits = item.group == DisplayGroup::none
                                      ? screen
                                      : groups[static_cast<std::size_t>(item.group)].extents;
    if (item.kind == DisplayItem::Kind::content) {
        item.extents = ContentPlace(item.shape).pixels(limits);
    } else {
        if (item.shape.isUpright()) {
            item.lineWidth *= item.shape.pixelsPerPoint();
            item.lineWidth = item.lineWidth > 0 ? std::max(1.0, std::round(item.lineWidth)) : 0;
        }
        item.shape = item.shape.onPixels();
        item.extents = pixelsAround(item.shape.bounds(), limits);
    }
    if (!item.extents.isEmpty()) {
        items.push_back(item);
    }
}

namespace {

class Comparison {
public:
    Comparison(const DisplayList& shown, const DisplayList& wanted)
        : shown_(shown), wanted_(wanted) {}

    PixelArea differences() {
        skipEqualEnds();
        indexShown();
        for (std::size_t index = first_; index < wantedEnd_; ++index) {
            meet(wanted_.items[index]);
        }
        for (const auto& [key, left] : places_) { // what is shown and not wanted any more
            area_.add(shown_.items[left].extents);
        }
        return area_;
    }

private:
    /// The stamp, and the kind in bits that stamps do not reach.
    static std::uint64_t key(const DisplayItem& item) {
        constexpr unsigned kindBits = 62;
        return item.stamp | static_cast<std::uint64_t>(item.kind) << kindBits;
    }

    [[nodiscard]] bool sameGroup(int shown, int wanted) const {
        while (shown != DisplayGroup::none && wanted != DisplayGroup::none) {
            const DisplayGroup& a = shown_.groups[static_cast<std::size_t>(shown)];
            const DisplayGroup& b = wanted_.groups[static_cast<std::size_t>(wanted)];
            if (a.kind != b.kind || a.stamp != b.stamp || a.shape != b.shape ||
                a.opacity != b.opacity) {
                return false;
            }
            shown = a.parent;
            wanted = b.parent;
        }
        return shown == wanted;
    }

    [[nodiscard]] bool same(const DisplayItem& a, const DisplayItem& b) const {
        return a.kind == b.kind && a.stamp == b.stamp && a.shape == b.shape &&
               a.colour == b.colour && a.lineWidth == b.lineWidth && sameGroup(a.group, b.group);
    }

    void skipEqualEnds() {
        const auto& shown = shown_.items;
        const auto& wanted = wanted_.items;
        shownEnd_ = shown.size();
        wantedEnd_ = wanted.size();
        while (first_ < std::min(shownEnd_, wantedEnd_) && same(shown[first_], wanted[first_])) {
            ++first_;
        }
        while (std::min(shownEnd_, wantedEnd_) > first_ &&
               same(shown[shownEnd_ - 1], wanted[wantedEnd_ - 1])) {
            --shownEnd_;
            --wantedEnd_;
        }
    }

    void indexShown() {
        for (std::size_t index = first_; index < shownEnd_; ++index) {
            places_.emplace(key(shown_.items[index]), index);
        }
    }

    void meet(const DisplayItem& wanted) {
        const auto found = places_.find(key(wanted));
        if (found == places_.end()) {
            area_.add(wanted.extents);
            return;
        }
        const std::size_t place = found->second;
        const DisplayItem& shown = shown_.items[place];
        places_.erase(found);
        // Of two items that have changed order, the one that is met later lies before the other's
        // former place: drawing it anew mends whatever they share.
        if (place < frontMost_ || !same(shown, wanted)) {
            area_.add(shown.extents);
            area_.add(wanted.extents);
        }
        frontMost_ = std::max(frontMost_, place);
    }

    const DisplayList& shown_;
    const DisplayList& wanted_;
    std::size_t first_ = 0;
    std::size_t shownEnd_ = 0;
    std::size_t wantedEnd_ = 0;
    std::size_t frontMost_ = 0;
    std::unordered_map<std::uint64_t, std::size_t> places_;
    PixelArea area_;
};

} // namespace

PixelArea differences(const DisplayList& shown, const DisplayList& wanted) {
    if (shown.screen != wanted.screen) {
        PixelArea all;
        all.add(wanted.screen);
        return all;
    }
    return Comparison(shown, wanted).differences();
}

} // namespace desktop
