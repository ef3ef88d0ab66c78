// The rows of each page. The measures are those of running phones, in points.
#include "desktop/uikit/keyboard_layout.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace desktop {
namespace {

constexpr double predictions = 45;
constexpr double rowPitch = 54;
constexpr double keyHeight = 42;
constexpr double topMargin = 10;
constexpr double sideMargin = 3;
constexpr double gap = 6;
constexpr double homeIndicator = 75;
constexpr double bottomMargin = 3;
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
    Row(std::vector<Key>& keys, std::size_t index, double left)
        : keys_(keys), left_(left),
          top_(predictions + topMargin + static_cast<double>(index) * rowPitch) {}

    void add(KeyRole role, std::u16string label, double width) {
        keys_.push_back({role, std::move(label), {left_, top_, width, keyHeight}});
        left_ += width + gap;
    }

private:
    std::vector<Key>& keys_;
    double left_;
    double top_;
};

} // namespace

double keyboardHeight(bool hasHomeIndicator) {
    return predictions + rowCount * rowPitch - bottomMargin +
           (hasHomeIndicator ? homeIndicator + bottomMargin : bottomMargin);
}

std::vector<Key> keyboardKeys(double width, KeyPage page, bool capitals,
                              const std::u16string& enterLabel) {
    std::vector<Key> keys;
    if (!(width >= narrowest && width <= widest)) {
        return keys;
    }
    const double one = (width - 2 * sideMargin - (keysInARow - 1) * gap) / keysInARow;
    const Rows& rows = rowsOf(page);
    for (std::size_t index = 0; index < 2; ++index) {
        const auto count = static_cast<double>(rows[index].size());
        Row row(keys, index, (width - count * one - (count - 1) * gap) / 2);
        for (const char16_t character : rows[index]) {
            row.add(KeyRole::character, labelled(character, capitals), one);
        }
    }
    const double side = one * 1.3;
    Row third(keys, 2, sideMargin);
    if (page == KeyPage::letters) {
        third.add(KeyRole::shift, u"⇧", side);
    } else {
        const bool toSymbols = page == KeyPage::digits;
        third.add(toSymbols ? KeyRole::symbols : KeyRole::digits, toSymbols ? u"#+=" : u"123",
                  side);
    }
    const double between = width - 2 * (sideMargin + side + 2 * gap);
    const auto count = static_cast<double>(rows[2].size());
    Row middle(keys, 2, sideMargin + side + 2 * gap);
    for (const char16_t character : rows[2]) {
        middle.add(KeyRole::character, labelled(character, capitals),
                   (between - (count - 1) * gap) / count);
    }
    Row(keys, 2, width - sideMargin - side).add(KeyRole::erase, u"⌫", side);

    const double quarter = (width - 2 * sideMargin - 2 * gap) / 4;
    Row last(keys, rowCount - 1, sideMargin);
    const bool hasLetters = page == KeyPage::letters;
    last.add(hasLetters ? KeyRole::digits : KeyRole::letters, hasLetters ? u"123" : u"ABC",
             quarter);
    last.add(KeyRole::space, u"空格", 2 * quarter);
    last.add(KeyRole::enter, enterLabel, quarter);
    return keys;
}

const Key* keyAt(const std::vector<Key>& keys, Point point) {
    const auto above = [=](const Key& key) {
        const double slack = (rowPitch - keyHeight) / 2;
        return point.y >= key.box.y - slack && point.y < key.box.y + key.box.height + slack;
    };
    const Key* nearest = nullptr;
    double least = 0;
    for (const Key& key : keys) {
        const double distance =
            std::max({key.box.x - point.x, 0.0, point.x - key.box.x - key.box.width});
        if (above(key) && (nearest == nullptr || distance < least)) {
            nearest = &key;
            least = distance;
        }
    }
    return nearest;
}

} // namespace desktop
