// Follows the references from the outermost object, each object once.
#include "desktop/foundation/binary_nesting.hpp"

#include "desktop/foundation/property_list.hpp"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace desktop::foundation {
namespace {

class Objects {
public:
    explicit Objects(std::string_view list) : list_(list) {
        constexpr std::size_t trailer = 32;
        const std::size_t end = list.size() - std::min(list.size(), trailer);
        offsetSize_ = number(end + 6, 1);
        referenceSize_ = number(end + 7, 1);
        count_ = std::min<std::uint64_t>(number(end + 8, 8), list.size());
        top_ = number(end + 16, 8);
        table_ = number(end + 24, 8);
    }

    [[nodiscard]] std::size_t count() const { return count_; }
    [[nodiscard]] std::size_t top() const { return top_; }

    /// The objects in a collection; nothing in any other object.
    [[nodiscard]] std::vector<std::size_t> inside(std::size_t object) const {
        constexpr std::uint64_t array = 0xA;
        constexpr std::uint64_t dictionary = 0xD;
        std::size_t at = number(table_ + object * offsetSize_, offsetSize_);
        const std::uint64_t marker = number(at++, 1);
        const std::uint64_t kind = marker >> 4U;
        if (kind < array || kind > dictionary) {
            return {};
        }
        const std::uint64_t length = count(marker & 0xFU, at) * (kind == dictionary ? 2 : 1);
        std::vector<std::size_t> found;
        for (; found.size() < length && at < list_.size(); at += referenceSize_) {
            found.push_back(number(at, referenceSize_));
        }
        return found;
    }

private:
    /// The count in a marker, or in the integer behind it, which is passed by then.
    std::uint64_t count(std::uint64_t inMarker, std::size_t& at) const {
        constexpr std::uint64_t follows = 15;
        if (inMarker < follows) {
            return inMarker;
        }
        const std::size_t size = std::size_t{1} << (number(at, 1) & 0x3U);
        const std::uint64_t counted = number(at + 1, size);
        at += 1 + size;
        return std::min<std::uint64_t>(counted, list_.size());
    }

    /// Most significant byte first; 0 where there are no such bytes.
    [[nodiscard]] std::uint64_t number(std::size_t at, std::size_t size) const {
        std::uint64_t value = 0;
        if (at < list_.size() && size <= list_.size() - at) {
            for (const char byte : list_.substr(at, size)) {
                value = value << 8U | static_cast<unsigned char>(byte);
            }
        }
        return value;
    }

    std::string_view list_;
    std::size_t offsetSize_ = 0;
    std::size_t referenceSize_ = 0;
    std::size_t count_ = 0;
    std::size_t top_ = 0;
    std::size_t table_ = 0;
};

/// Walks into the depth, and remembers how deep each object was found to be.
class Walk {
public:
    explicit Walk(std::string_view list) : objects_(list), depths_(objects_.count(), unseen) {}

    bool findsTooDeep() {
        bool isFine = enter(objects_.top());
        while (isFine && !path_.empty()) {
            Step& step = path_.back();
            if (step.next < step.inside.size()) {
                isFine = enter(step.inside[step.next++]);
            } else {
                leave();
            }
        }
        return !isFine;
    }

private:
    struct Step {
        std::size_t object = 0;
        std::vector<std::size_t> inside = {};
        std::size_t next = 0;
        std::size_t depth = 0; // of what is inside, as far as it is known
    };
    static constexpr std::size_t unseen = static_cast<std::size_t>(-1);
    static constexpr std::size_t onPath = unseen - 1;

    /// False when that would be too deep.
    bool enter(std::size_t object) {
        if (object >= depths_.size()) {
            return true;
        }
        if (depths_[object] == unseen) {
            depths_[object] = onPath;
            path_.push_back({.object = object, .inside = objects_.inside(object)});
            return path_.size() <= deepestNesting + 1; // the innermost value is no collection
        }
        return depths_[object] != onPath && tell(depths_[object]);
    }

    void leave() {
        const Step done = std::move(path_.back());
        path_.pop_back();
        depths_[done.object] = done.depth;
        tell(done.depth);
    }

    /// The last step's object holds one of that depth.
    bool tell(std::size_t depth) {
        if (!path_.empty()) {
            path_.back().depth = std::max(path_.back().depth, depth + 1);
        }
        return path_.size() + depth <= deepestNesting;
    }

    Objects objects_;
    std::vector<std::size_t> depths_;
    std::vector<Step> path_;
};

} // namespace

bool isBinaryTooDeep(std::string_view list) { return Walk(list).findsTooDeep(); }

} // namespace desktop::foundation
