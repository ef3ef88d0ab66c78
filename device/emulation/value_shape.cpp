// Reading type encodings.
#include "device/emulation/value_shape.hpp"

#include "device/emulation/refusal.hpp"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <system_error>

namespace emulation {
namespace {

constexpr std::string_view qualifiersAndOffsets = "rnNoORVA+-0123456789";

std::optional<std::size_t> scalarSize(char kind) {
    switch (kind) {
    case 'v':
        return 0;
    case 'B':
    case 'C':
    case 'c':
        return 1;
    case 'S':
    case 's':
        return 2;
    case 'I':
    case 'i':
    case 'f':
        return 4;
    case 'L':
    case 'l':
    case 'Q':
    case 'q':
    case 'd':
    case '@':
    case '#':
    case ':':
    case '*':
    case '^':
        return 8;
    default:
        return std::nullopt;
    }
}

constexpr std::size_t padded(std::size_t size, std::size_t alignment) {
    return (size + alignment - 1) / alignment * alignment;
}

/// Of the parts of an aggregate: whether they are numbers of one floating-point type so far.
class Floats {
public:
    void add(const ValueShape& part) {
        const std::size_t size = part.floats == 0 ? 0 : part.size / part.floats;
        isMixed_ = isMixed_ || size == 0 || (count_ != 0 && size != size_);
        size_ = size;
        count_ += part.floats;
    }
    [[nodiscard]] unsigned count() const { return isMixed_ ? 0 : count_; }

private:
    bool isMixed_ = false;
    std::size_t size_ = 0;
    unsigned count_ = 0;
};

class Reader {
public:
    explicit Reader(std::string_view types) : types_(types), rest_(types) {}

    bool atEnd() {
        passAnyOf(qualifiersAndOffsets);
        return rest_.empty();
    }

    ValueShape shape() {
        passAnyOf(qualifiersAndOffsets);
        const char kind = take();
        switch (kind) {
        case '{':
        case '(':
            return aggregate(kind);
        case '[':
            return array();
        case '^':
            passType();
            break;
        case '@':
            passObjectType();
            break;
        default:
            break;
        }
        return scalar(kind);
    }

private:
    char take() {
        if (rest_.empty()) {
            refuseTypes();
        }
        const char first = rest_.front();
        rest_.remove_prefix(1);
        return first;
    }
    bool passIf(char expected) {
        const bool found = !rest_.empty() && rest_.front() == expected;
        rest_.remove_prefix(found ? 1 : 0);
        return found;
    }
    void passAnyOf(std::string_view characters) {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(characters), rest_.size()));
    }
    std::string_view passUpTo(char end) {
        const std::string_view passed = rest_.substr(0, rest_.find(end));
        rest_.remove_prefix(passed.size());
        take();
        return passed;
    }

    ValueShape scalar(char kind) const {
        const auto size = scalarSize(kind);
        if (!size) {
            refuseTypes();
        }
        return {*size, std::max<std::size_t>(*size, 1), kind, kind == 'd' || kind == 'f' ? 1U : 0U};
    }

    /// What a pointer points to may be of any type, known or not.
    void passType() {
        passAnyOf(qualifiersAndOffsets);
        const char kind = take();
        if (kind == '^') {
            passType();
        } else if (kind == '@') {
            passObjectType();
        } else if (kind == '{' || kind == '(' || kind == '[') {
            passBracket();
        }
    }
    void passBracket() {
        for (int depth = 1; depth > 0;) {
            const char next = take();
            depth += next == '{' || next == '(' || next == '[' ? 1 : 0;
            depth -= next == '}' || next == ')' || next == ']' ? 1 : 0;
        }
    }
    void passObjectType() {
        if (!passIf('?') && passIf('"')) {
            passUpTo('"');
        }
    }

    ValueShape aggregate(char kind) {
        const char end = kind == '{' ? '}' : ')';
        if (passUpTo('=').find(end) != std::string_view::npos) {
            refuseTypes(); // it has no fields here
        }
        ValueShape whole{0, 1, kind, 0};
        Floats floats;
        while (!passIf(end)) {
            if (passIf('"')) {
                passUpTo('"'); // the field's name
            }
            const ValueShape part = shape();
            const std::size_t start = kind == '{' ? padded(whole.size, part.alignment) : 0;
            whole.size = std::max(whole.size, start + part.size);
            whole.alignment = std::max(whole.alignment, part.alignment);
            floats.add(part);
        }
        whole.size = padded(whole.size, whole.alignment);
        whole.floats = kind == '{' ? floats.count() : 0;
        return whole;
    }

    ValueShape array() {
        unsigned count = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), count);
        if (error != std::errc()) {
            refuseTypes();
        }
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        const ValueShape element = shape();
        if (!passIf(']')) {
            refuseTypes();
        }
        return {count * element.size, element.alignment, '[', count * element.floats};
    }

    [[noreturn]] void refuseTypes() const { throw Refusal("the types " + std::string(types_)); }

    std::string_view types_;
    std::string_view rest_;
};

} // namespace

std::vector<ValueShape> shapesOf(std::string_view types) {
    std::vector<ValueShape> shapes;
    for (Reader reader(types); !reader.atEnd();) {
        shapes.push_back(reader.shape());
    }
    return shapes;
}

} // namespace emulation
