// A single pass over an old property list, checking all of it and keeping only the top entries.
#include "library/preferences/property_list/property_list_old.hpp"

#include "library/common/slashed_text.hpp"
#include "library/common/text_encoding.hpp"

#include <algorithm>
#include <array>

namespace wentra::preferences {
namespace {

constexpr bool isLetterOrDigit(char character) {
    const char lower = static_cast<char>(character | 0x20);
    return (character >= '0' && character <= '9') || (lower >= 'a' && lower <= 'z');
}

/// Of a text without quotation marks.
constexpr bool isPlain(char character) {
    constexpr std::string_view signs = "_$/:.-";
    return isLetterOrDigit(character) || signs.find(character) != signs.npos;
}

constexpr bool isHexadecimal(char character) {
    const char lower = static_cast<char>(character | 0x20);
    return (character >= '0' && character <= '9') || (lower >= 'a' && lower <= 'f');
}

class OldReader {
public:
    OldReader(std::string_view document, EntrySink& sink)
        : at_(document.data()), end_(at_ + document.size()), sink_(sink) {}

    bool read() {
        skipSpace();
        isBraced_ = skip('{');
        open_[depth_++] = Container::dictionary;
        while (depth_ > 0) {
            skipSpace();
            if (!(isInDictionary() ? entry() : element())) {
                return false;
            }
        }
        skipSpace();
        return at_ == end_;
    }

private:
    enum class Container : unsigned char { dictionary, array };

    static constexpr std::size_t deepest = 512;

    bool isInDictionary() const { return open_[depth_ - 1] == Container::dictionary; }

    bool skip(char character) {
        const bool found = at_ < end_ && *at_ == character;
        at_ += found ? 1 : 0;
        return found;
    }

    bool skip(std::string_view text) {
        const bool found = rest().starts_with(text);
        at_ += found ? text.size() : 0;
        return found;
    }

    std::string_view rest() const { return {at_, static_cast<std::size_t>(end_ - at_)}; }

    // White space and comments; a comment without an end goes on to the end of the text.
    void skipSpace() {
        for (;;) {
            if (skip("//")) {
                at_ += std::min(rest().find_first_of("\r\n"), rest().size());
            } else if (skip("/*")) {
                at_ += std::min(rest().find("*/"), rest().size());
                skip("*/");
            } else if ((*at_ >= '\t' && *at_ <= '\r') || *at_ == ' ') {
                ++at_;
            } else if (!skip("\u2028") && !skip("\u2029")) {
                return;
            }
        }
    }

    // The end of the dictionary, or a key with its value.
    bool entry() {
        if (depth_ == 1 && !isBraced_ ? at_ == end_ : skip('}')) {
            return close();
        }
        if (!text()) {
            return false;
        }
        isWanted_ = depth_ == 1 ? select() : isWanted_;
        skipSpace();
        if (*at_ == ';') {
            return reportText() && finishValue();
        }
        if (!skip('=')) {
            return false;
        }
        skipSpace();
        return value();
    }

    bool element() { return skip(')') ? close() : value(); }

    bool close() {
        --depth_;
        return depth_ == 0 || finishValue();
    }

    // What separates a value from the next one.
    bool finishValue() {
        skipSpace();
        return isInDictionary() ? skip(';') : skip(',') || *at_ == ')';
    }

    bool value() {
        if (skip('{')) {
            return open(Container::dictionary);
        }
        if (skip('(')) {
            return open(Container::array);
        }
        if (skip('<')) {
            return data() && report({}) && finishValue();
        }
        return text() && reportText() && finishValue();
    }

    bool open(Container kind) {
        if (depth_ == deepest) {
            return false;
        }
        report({});
        open_[depth_++] = kind;
        return true;
    }

    bool data() {
        skipSpace();
        while (skipByte()) {
            skipSpace();
        }
        return skip('>');
    }

    // Two digits that stand together.
    bool skipByte() {
        const bool found = isHexadecimal(at_[0]) && isHexadecimal(at_[1]);
        at_ += found ? 2 : 0;
        return found;
    }

    // Leaves the text in content_, without its quotation marks.
    bool text() {
        isSlashed_ = false;
        return skip('"') ? quoted('"') : skip('\'') ? quoted('\'') : plain();
    }

    bool quoted(char mark) {
        const char* const begin = at_;
        while (at_ < end_ && *at_ != mark) {
            isSlashed_ = isSlashed_ || *at_ == '\\';
            at_ += *at_ == '\\' ? 2 : 1; // the padding is there for a slash at the end
        }
        content_ = {begin, static_cast<std::size_t>(at_ - begin)};
        return skip(mark);
    }

    bool plain() {
        const char* const begin = at_;
        while (at_ < end_ && isPlain(*at_)) {
            ++at_;
        }
        content_ = {begin, static_cast<std::size_t>(at_ - begin)};
        return !content_.empty();
    }

    bool select() {
        return isSlashed_
                   ? sink_.select(utf8FromUtf16(unslashed(utf16FromUtf8(content_))), Encoding::utf8)
                   : sink_.select(content_, Encoding::utf8);
    }

    bool reportText() {
        return report({isSlashed_ ? Value::Kind::slashedText : Value::Kind::utf8Text, content_});
    }

    bool report(Value value) {
        if (depth_ == 1 && isWanted_) {
            sink_.assign(value);
        }
        return true;
    }

    const char* at_;
    const char* end_;
    EntrySink& sink_;

    std::string_view content_;
    bool isSlashed_ = false;
    bool isBraced_ = false;
    bool isWanted_ = false;
    std::array<Container, deepest> open_;
    std::size_t depth_ = 0;
};

} // namespace

bool readOldPropertyList(const PaddedBytes& document, EntrySink& sink) {
    return isUtf8(document.view()) && OldReader(document.view(), sink).read();
}

} // namespace wentra::preferences
