// Divides text into blocks, sets them when they are wanted, and adds up their heights.
#include "desktop/drawing/text_flow.hpp"

#include "desktop/drawing/line_estimate.hpp"
#include "desktop/surrogates.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace desktop {
namespace {

// A block is set as a whole: short enough to be set anew at every keystroke, long enough that there
// are few of them.
constexpr std::size_t blockLength = 2048;
// Layouts cost some hundred bytes for each unit; these are enough for what is on a screen.
constexpr std::size_t mostLayouts = 48;

/// Where to end the first block of so many units that begin with this text: behind the last line
/// break, if there is one, and so that no small rest is left.
std::size_t firstCut(std::u16string_view text, std::size_t units) {
    if (units <= blockLength) {
        return units;
    }
    const std::size_t most = units < 2 * blockLength ? units / 2 : blockLength;
    const std::size_t lineBreak = text.rfind(u'\n', most - 1);
    if (lineBreak != std::u16string_view::npos) {
        return lineBreak + 1;
    }
    return isLowSurrogate(text[most]) ? most - 1 : most;
}

/// A selection that goes on behind a line reaches to that end of it.
void extend(std::vector<Rectangle>& boxes, bool isRightToLeft, double width) {
    if (isRightToLeft) {
        boxes.front().width += std::exchange(boxes.front().x, 0);
    } else {
        boxes.back().width = std::max(boxes.back().width, width - boxes.back().x);
    }
}

} // namespace

void TextFlow::setWidth(double width) {
    if (width != width_ && !(std::isnan(width) && std::isnan(width_))) {
        width_ = width;
        reset();
    }
}

void TextFlow::setAlignment(TextAlignment alignment) {
    if (std::exchange(alignment_, alignment) != alignment) {
        reset();
    }
}

void TextFlow::setSingleLine() {
    singleLine_ = true;
    reset();
}

void TextFlow::reset() {
    blocks_.clear();
    edit_.reset();
}

void TextFlow::prepare() {
    if (blocks_.empty()) {
        blocks_ = split({0, source_.length()});
    } else if (const auto edit = std::exchange(edit_, std::nullopt); edit) {
        apply(*edit);
    }
}

std::vector<TextFlow::Block> TextFlow::split(Stretch stretch) const {
    std::vector<Block> blocks;
    if (singleLine_) {
        blocks.push_back({.length = stretch.end - stretch.start});
        return blocks;
    }
    do {
        const std::u16string text =
            source_.units({stretch.start, std::min(stretch.end, stretch.start + blockLength + 1)});
        const std::size_t length = firstCut(text, stretch.end - stretch.start);
        const bool open =
            stretch.start + length < source_.length() && (length == 0 || text[length - 1] != u'\n');
        const Size size = estimate(std::u16string_view(text).substr(0, length), stretch.start);
        blocks.push_back(
            {.length = length, .open = open, .width = size.width, .height = size.height});
        stretch.start += length;
    } while (stretch.start < stretch.end);
    return blocks;
}

Size TextFlow::estimate(std::u16string_view text, std::size_t start) const {
    const Font font = source_.runs({start, std::min(start + 1, source_.length())}).front().font;
    const LineEstimate lines = estimateLines(text, font, width_);
    return {lines.width, static_cast<double>(lines.lines) * metrics(font).lineHeight};
}

void TextFlow::replaced(Stretch former, std::size_t length) {
    if (blocks_.empty()) {
        return;
    }
    if (!edit_) {
        edit_ = Edit{former, length};
        return;
    }
    const std::size_t start = std::min(edit_->former.start, former.start);
    const std::size_t edited =
        edit_->former.start + edit_->length; // where the edits before end now
    const std::size_t end = std::max(edited, former.end);
    edit_ = {{start, edit_->former.end + end - edited},
             end - start + length - (former.end - former.start)};
}

void TextFlow::apply(const Edit& edit) {
    const auto& [former, length] = edit;
    Place first = blockWith(former.start);
    // A word may move back onto the line before.
    if (first.index > 0 && blocks_[first.index - 1].open) {
        --first.index;
        first.start -= blocks_[first.index].length;
    }
    std::size_t last = first.index;
    std::size_t end = first.start + blocks_[last].length;
    while (end < former.end && last + 1 < blocks_.size()) {
        end += blocks_[++last].length;
    }
    // Text that ended with the block may not be its end any more, and small blocks are joined.
    const std::size_t change = length - (former.end - former.start); // may wrap: it is added again
    const auto isSmall = [&](std::size_t more) {
        return end + change - first.start < blockLength / 4 ||
               end + change - first.start + more <= blockLength;
    };
    while (last + 1 < blocks_.size() && isSmall(blocks_[last + 1].length)) {
        end += blocks_[++last].length;
    }
    replaceBlocks(first.index, last + 1, {first.start, std::max(first.start, end + change)});
}

TextFrame TextFlow::frame() const {
    TextFrame frame;
    frame.width = width_;
    frame.alignment = alignment_;
    frame.lineBreakMode = singleLine_ ? LineBreakMode::clipping : LineBreakMode::wordWrapping;
    frame.maximumLines = singleLine_ ? 1 : 0;
    return frame;
}

Stretch TextFlow::unitsOf(const Place& place) const {
    return {place.start, place.start + blocks_[place.index].length};
}

TextLayout TextFlow::set(Stretch stretch) const {
    if (singleLine_) {
        stretch.end = std::min(stretch.end, stretch.start + longestLine);
    }
    return {source_.units(stretch), source_.runs(stretch), frame()};
}

const TextLayout& TextFlow::layout(const Place& place) {
    if (!blocks_[place.index].layout) {
        forgetFarFrom(place.index);
        TextLayout set = this->set(unitsOf(place));
        const std::size_t lines = set.lineCount();
        if (blocks_[place.index].open && !blocks_[place.index].wasSet && lines > 1) {
            passOn(place, set.lineUnits(lines - 1).start);
            set = this->set(unitsOf(place));
        }
        Block& block = blocks_[place.index];
        // The empty line behind the last line break is the next block's.
        const bool dropsLine = !isLast(place) && !block.open && set.lineCount() > 1;
        block.height = dropsLine              ? set.lineRectangle(set.lineCount() - 1).y
                       : set.lineCount() == 0 ? set.caretRectangle(0).height
                                              : set.lineRectangle(set.lineCount() - 1).y +
                                                    set.lineRectangle(set.lineCount() - 1).height;
        block.wasSet = true;
        block.width = set.size().width;
        block.layout = std::move(set);
    }
    return *blocks_[place.index].layout;
}

/// The block keeps its first units; the next one gets the rest, which its last line begins with.
void TextFlow::passOn(const Place& place, std::size_t kept) {
    const std::size_t end = unitsOf(next(place)).end;
    blocks_[place.index].length = kept;
    replaceBlocks(place.index + 1, place.index + 2, {place.start + kept, end});
}

void TextFlow::replaceBlocks(std::size_t first, std::size_t end, Stretch stretch) {
    auto fresh = split(stretch);
    const auto at = [this](std::size_t index) {
        return blocks_.begin() + static_cast<std::ptrdiff_t>(index);
    };
    const auto place = blocks_.erase(at(first), at(end));
    blocks_.insert(place, std::make_move_iterator(fresh.begin()),
                   std::make_move_iterator(fresh.end()));
}

void TextFlow::forgetFarFrom(std::size_t index) {
    const auto hasLayout = [](const Block& block) { return block.layout.has_value(); };
    if (static_cast<std::size_t>(std::ranges::count_if(blocks_, hasLayout)) < mostLayouts) {
        return;
    }
    for (std::size_t other = 0; other < blocks_.size(); ++other) {
        if (other + mostLayouts / 4 < index || other > index + mostLayouts / 4) {
            blocks_[other].layout.reset();
        }
    }
}

TextFlow::Place TextFlow::next(const Place& place) const {
    const Block& block = blocks_[place.index];
    return {place.index + 1, place.start + block.length, place.top + block.height};
}

TextFlow::Place TextFlow::blockWith(std::size_t unit) {
    prepare();
    Place place;
    while (!isLast(place) && unit >= place.start + blocks_[place.index].length) {
        place = next(place);
    }
    return place;
}

TextFlow::Place TextFlow::blockAtHeight(double y) {
    prepare();
    Place place;
    for (; !isLast(place); place = next(place)) {
        if (y < place.top + blocks_[place.index].height) {
            layout(place);
            if (y < place.top + blocks_[place.index].height) {
                break;
            }
        }
    }
    return place;
}

Size TextFlow::size() {
    prepare();
    const bool exact = source_.length() <= exactLength;
    double width = 0;
    Place place;
    for (;; place = next(place)) {
        if (exact) {
            layout(place);
        }
        width = std::max(width, blocks_[place.index].width);
        if (isLast(place)) {
            break;
        }
    }
    return {width, place.top + blocks_[place.index].height};
}

Rectangle TextFlow::caret(std::size_t unit) {
    Place place = blockWith(unit);
    layout(place);
    // Setting it may have passed the unit on.
    while (!isLast(place) && unit >= unitsOf(place).end) {
        place = next(place);
        layout(place);
    }
    Rectangle caret = layout(place).caretRectangle(unit - std::min(unit, place.start));
    caret.y += place.top;
    return caret;
}

std::size_t TextFlow::unitAt(Point point) {
    const Place place = blockAtHeight(point.y);
    const TextLayout& set = layout(place);
    std::size_t unit = set.indexAt({point.x, point.y - place.top});
    // Behind the last character of a wrapped line the caret would stand on the next one.
    for (std::size_t line = 0; line < set.lineCount(); ++line) {
        const Rectangle box = set.lineRectangle(line);
        const Stretch units = set.lineUnits(line);
        const bool isHere = point.y - place.top < box.y + box.height;
        if (isHere && unit == units.end && unit > units.start && line + 1 < set.lineCount()) {
            unit = set.indexAt({set.caretRectangle(unit - 1).x, box.y + box.height / 2});
        }
        if (isHere) {
            break;
        }
    }
    return place.start + std::min(unit, blocks_[place.index].length);
}

Stretch TextFlow::lineAt(std::size_t unit) {
    caret(unit); // settles where its block ends
    const Place place = blockWith(unit);
    const TextLayout& set = layout(place);
    const Stretch line = set.lineUnits(set.lineOf(unit - std::min(unit, place.start)));
    return {place.start + line.start, place.start + line.end};
}

std::size_t TextFlow::unitInLine(std::size_t unit, long linesBelow, double x) {
    while (linesBelow != 0) {
        const Stretch line = lineAt(unit);
        if (linesBelow < 0 && line.start == 0) {
            return 0;
        }
        const bool isLastLine = lineAt(line.end).start == line.start;
        if (linesBelow > 0 && isLastLine) {
            return source_.length();
        }
        unit = linesBelow > 0 ? line.end : line.start - 1;
        linesBelow += linesBelow > 0 ? -1 : 1;
    }
    const Rectangle line = caret(unit);
    return unitAt({x, line.y + line.height / 2});
}

std::vector<Rectangle> TextFlow::rectangles(Stretch units, double top, double bottom) {
    std::vector<Rectangle> found;
    for (Place place = blockAtHeight(top); place.top <= bottom; place = next(place)) {
        const TextLayout& set = layout(place);
        const bool isLastBlock = isLast(place);
        for (std::size_t index = 0; index < set.lineCount(); ++index) {
            const Stretch line = set.lineUnits(index);
            const std::size_t start = std::max(units.start, place.start + line.start);
            const std::size_t end = std::min(units.end, place.start + line.end);
            const Rectangle box = set.lineRectangle(index);
            if (start >= end || place.top + box.y + box.height <= top ||
                place.top + box.y >= bottom) {
                continue;
            }
            const bool goesOn = units.end > place.start + line.end ||
                                (units.end == place.start + line.end &&
                                 (index + 1 < set.lineCount() || !isLastBlock));
            auto boxes = set.selection(index, {start - place.start, end - place.start});
            if (boxes.empty()) {
                boxes.push_back({set.caretRectangle(start - place.start).x, box.y, 0, box.height});
            }
            if (goesOn) {
                extend(boxes, set.isRightToLeft(index),
                       std::isfinite(width_) ? width_ : box.x + box.width);
            }
            for (Rectangle& piece : boxes) {
                piece.y += place.top;
                found.push_back(piece);
            }
        }
        if (isLastBlock) {
            break;
        }
    }
    return found;
}

void TextFlow::draw(cairo_t* context, Point origin) {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    cairo_clip_extents(context, &left, &top, &right, &bottom);
    if (!std::isfinite(origin.x) || !std::isfinite(origin.y)) {
        return;
    }
    for (Place place = blockAtHeight(top - origin.y);; place = next(place)) {
        layout(place).draw(context, {origin.x, origin.y + place.top});
        if (isLast(place) || origin.y + next(place).top > bottom) {
            break;
        }
    }
}

} // namespace desktop
