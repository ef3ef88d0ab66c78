// Brings runs into order: bounded by the text, without overlaps and without gaps.
#include "desktop/drawing/styled_text.hpp"

#include "desktop/drawing/font_machinery.hpp"

#include <algorithm>

namespace desktop {
namespace {

constexpr double widestStretch = 500000;
constexpr std::size_t mostUnits = 32768;

std::size_t longestStretchOf(std::span<const TextRun> runs) {
    double size = 1;
    for (const TextRun& run : runs) {
        size = std::max(size, drawnSize(run.font));
    }
    return std::min(mostUnits, static_cast<std::size_t>(widestStretch / size));
}

} // namespace

StyledText::StyledText(std::u16string_view text, std::span<const TextRun> runs) : text_(text) {
    std::size_t covered = 0;
    const auto add = [&](TextRun run, std::size_t start, std::size_t end) {
        run.start = start;
        run.length = end - start;
        runs_.push_back(std::move(run));
        covered = end;
    };
    for (const TextRun& run : runs) {
        const std::size_t start = std::clamp(run.start, covered, text.size());
        const std::size_t skipped = start - std::min(start, run.start);
        const std::size_t length = run.length - std::min(run.length, skipped);
        if (length == 0 || (start == text.size() && !text.empty())) {
            continue;
        }
        if (start > covered) {
            add({}, covered, start);
        }
        add(run, start, start + std::min(length, text.size() - start));
    }
    if (covered < text.size() || runs_.empty()) {
        add({}, covered, text.size());
    }
    longestStretch_ = longestStretchOf(runs_);
}

std::span<const TextRun> StyledText::runs(std::size_t start, std::size_t end) const {
    const auto after = [this](std::size_t unit) {
        return std::ranges::upper_bound(runs_, unit, {}, &TextRun::start);
    };
    const auto first = std::prev(after(start));
    const auto last = end > start ? after(end - 1) : std::next(first);
    return {first, last};
}

} // namespace desktop
