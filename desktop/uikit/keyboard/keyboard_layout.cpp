// The rows of each page. The measures are those of running phones, in points.
#include "desktop/uikit/keyboard/keyboard_layout.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace desktop {
namespace {

/// Down the keyboard; they depend on how the phone is held.
struct Measures {
    double predictions;
    double rowPitch;
    double keyHeight;
    double topMargin;
    double belowKeys;
    double belowKeysAndIndicator;
};

constexpr Measures upright{45, 54, 42, 10, 0, 75};
constexpr Measures low{38, 38, 32, 6, 10, 19};

const Measures& measuresOf(bool isLow) { return isLow ? low : upright; }

constexpr double sideMargin = 3;
constexpr double gap = 6;
constexpr std::size_t rowCount = 4;
constexpr std::size_t keysInARow = 10;
constexpr double narrowest = 100;
constexpr double widest = 10000;

using Rows = std::array<std::u16string_view, rowCount - 1>;

constexpr Rows letters{u"qwertyuiop", u"asdfghjkl", u"zxcvbnm"};
constexpr Rows digits{u"1234567890", u"-/:;()$&@\"", u".,?!'"};
constexpr Rows symbols{u"[]{}#%^*+=", u"_\\|~<>€£¥•", u".,?!'"};

const Rows& rowsOf(KeyPage page) {
    switch (page) {
    case KeyPage::digits:
        return digits;
    case KeyPage::symbols:
        return symbols;
    default:
        return letters;
    }
}

std::u16string labelled(char16_t character, bool capitals) {
    const bool isLetter = character >= u'a' && character <= u'z';
    return {isLetter && capitals ? static_cast<char16_t>(character - u'a' + u'A') : character};
}

/// Puts keys side by side into a row.
class Row {
public:
    Row(std::vector<Key>& keys, const Measures& measures, std::size_t index, double left)
        : keys_(keys), left_(left), top_(measures.predictions + measures.topMargin +
                                         static_cast<double>(index) * measures.rowPitch),
          height_(measures.keyHeight) {}

    void add(KeyRole role, std::u16string label, double width) {
        keys_.push_back({role, std::move(label), {left_, top_, width, height_}});
        left_ += width + gap;
    }

private:
    std::vector<Key>& keys_;
    double left_;
    double top_;
    double height_;
};

} // namespace

double keyboardHeight(bool isLow, bool hasHomeIndicator) {
    const Measures& measures = measuresOf(isLow);
    return measures.predictions + rowCount * measures.rowPitch +
           (hasHomeIndicator ? measures.belowKeysAndIndicator : measures.belowKeys);
}

namespace {

std::vector<Key> keysFrom(double left, double width, const Measures& measures, KeyPage page,
                          bool capitals, const std::u16string& enterLabel) {
    std::vector<Key> keys;
    if (!(width >= narrowest && width <= widest)) {
        return keys;
    }
    const double one = (width - 2 * sideMargin - (keysInARow - 1) * gap) / keysInARow;
    const Rows& rows = rowsOf(page);
    for (std::size_t index = 0; index < 2; ++index) {
        const auto count = static_cast<double>(rows[index].size());
        Row row(keys, measures, index, left + (width - count * one - (count - 1) * gap) / 2);
        for (const char16_t character : rows[index]) {
            row.add(KeyRole::character, labelled(character, capitals), one);
        }
    }
    const double side = one * 1.3;
    Row third(keys, measures, 2, left + sideMargin);
    if (page == KeyPage::letters) {
        third.add(KeyRole::shift, u"⇧", side);
    } else {
        const bool toSymbols = page == KeyPage::digits;
        third.add(toSymbols ? KeyRole::symbols : KeyRole::digits, toSymbols ? u"#+=" : u"123",
                  side);
    }
    const double between = width - 2 * (sideMargin + side + 2 * gap);
    const auto count = static_cast<double>(rows[2].size());
    Row middle(keys, measures, 2, left + sideMargin + side + 2 * gap);
    for (const char16_t character : rows[2]) {
        middle.add(KeyRole::character, labelled(character, capitals),
                   (between - (count - 1) * gap) / count);
    }
    Row(keys, measures, 2, left + width - sideMargin - side).add(KeyRole::erase, u"⌫", side);

    const double quarter = (width - 2 * sideMargin - 2 * gap) / 4;
    Row last(keys, measures, rowCount - 1, left + sideMargin);
    const bool hasLetters = page == KeyPage::letters;
    last.add(hasLetters ? KeyRole::digits : KeyRole::letters, hasLetters ? u"123" : u"ABC",
             quarter);
    last.add(KeyRole::space, u"空格", 2 * quarter);
    last.add(KeyRole::enter, enterLabel, quarter);
    return keys;
}

} // namespace

std::vector<Key> keyboardKeys(const KeyboardShape& shape, KeyPage page, bool capitals,
                              const std::u16string& enterLabel) {
    return keysFrom(shape.sides, shape.width - 2 * shape.sides, measuresOf(shape.isLow), page,
                    capitals, enterLabel);
}

const Key* keyAt(const std::vector<Key>& keys, Point point) {
    constexpr double slack = 6; // above the first row and below the last
    const auto beyond = [](double value, double from, double length) {
        return std::max({from - value, 0.0, value - from - length});
    };
    const Key* nearest = nullptr;
    std::pair least(slack, 0.0);
    for (const Key& key : keys) {
        const std::pair distance(beyond(point.y, key.box.y, key.box.height),
                                 beyond(point.x, key.box.x, key.box.width));
        if (distance.first <= slack && (nearest == nullptr || distance < least)) {
            nearest = &key;
            least = distance;
        }
    }
    return nearest;
}

} // namespace desktop
