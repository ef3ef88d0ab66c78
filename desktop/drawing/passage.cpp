// Encodes a stretch of text for Pango and gives Pango the attributes of its runs.
#include "desktop/drawing/passage.hpp"

#include "desktop/drawing/font_machinery.hpp"
#include "desktop/surrogates.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop {
namespace {

constexpr std::string_view ellipsis = "\u2026";
constexpr char32_t replacementCharacter = 0xFFFD;
constexpr char32_t zeroWidthSpace = 0x200B;

// The character at the beginning of a text that is not empty.
char32_t decode(std::u16string_view text) {
    const char16_t first = text.front();
    if (isHighSurrogate(first) && text.size() > 1 && isLowSurrogate(text[1])) {
        return 0x10000 + ((char32_t{first} - 0xD800u) << 10 | (char32_t{text[1]} - 0xDC00u));
    }
    return isHighSurrogate(first) || isLowSurrogate(first) ? replacementCharacter : first;
}

bool isLineBreak(char32_t character) {
    return character == '\n' || character == '\r' || character == 0x85 || character == 0x2028 ||
           character == 0x2029;
}

bool isControl(char32_t character) {
    return (character < 0x20 && character != '\t') || (character >= 0x7F && character < 0xA0);
}

// What is drawn for a character; Pango would draw boxes for the controls.
char32_t drawn(char32_t character, bool followedByLineFeed, bool singleLine) {
    if (character == '\r' && followedByLineFeed) {
        return zeroWidthSpace;
    }
    if (isLineBreak(character)) {
        return singleLine ? ' ' : '\n';
    }
    return isControl(character) ? zeroWidthSpace : character;
}

void append(std::string& bytes, char32_t character) {
    const auto put = [&bytes](char32_t value) { bytes.push_back(static_cast<char>(value)); };
    const auto tail = [&](int shift) { put(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        tail(0);
    } else if (character < 0x10000) {
        put(0xE0 | (character >> 12));
        tail(6);
        tail(0);
    } else {
        put(0xF0 | (character >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

guint16 channel(double component) {
    return static_cast<guint16>(
        std::lround(65535 * (component > 0 ? std::min(component, 1.0) : 0.0)));
}

// Puts attributes onto a range of bytes of a list.
class Painter {
public:
    Painter(PangoAttrList* list, int start, int end)
        : list_(list), start_(static_cast<guint>(start)), end_(static_cast<guint>(end)) {}

    void put(PangoAttribute* attribute) const {
        attribute->start_index = start_;
        attribute->end_index = end_;
        pango_attr_list_insert(list_, attribute);
    }

    void putFont(const Font& font) const {
        put(pango_attr_font_desc_new(describe(font).get()));
        put(pango_attr_font_features_new(font.monospacedDigits ? "calt=0, tnum=1" : "calt=0"));
    }

    void putLook(const TextRun& run) const {
        const Colour& colour = run.colour;
        put(pango_attr_foreground_new(channel(colour.red), channel(colour.green),
                                      channel(colour.blue)));
        putAlpha(pango_attr_foreground_alpha_new, colour.alpha);
        if (run.background) {
            put(pango_attr_background_new(channel(run.background->red),
                                          channel(run.background->green),
                                          channel(run.background->blue)));
            putAlpha(pango_attr_background_alpha_new, run.background->alpha);
        }
        if (run.underline) {
            put(pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
        }
        if (run.strikethrough) {
            put(pango_attr_strikethrough_new(TRUE));
        }
    }

private:
    // An alpha of zero means "not set" to Pango: the nearest one that is set cannot be seen either.
    void putAlpha(PangoAttribute* (*make)(guint16), double alpha) const {
        put(make(std::max<guint16>(channel(alpha), 1)));
    }

    PangoAttrList* list_;
    guint start_;
    guint end_;
};

} // namespace

Passage::Passage(const StyledText& text, Stretch whole, std::optional<Stretch> elided,
                 const Breaking& breaking)
    : whole_(whole), elided_(elided.value_or(Stretch{whole.end, whole.end})),
      layout_(pango_layout_new(textContext())) {
    encode(text, {whole.start, elided_.start}, breaking.singleLine);
    if (elided) {
        offsets_.push_back(static_cast<int>(bytes_.size()));
        bytes_.append(ellipsis);
        encode(text, {elided_.end, whole.end}, breaking.singleLine);
    }
    offsets_.push_back(static_cast<int>(bytes_.size()));

    pango_layout_set_text(layout_.get(), bytes_.c_str(), static_cast<int>(bytes_.size()));
    apply(text);
    if (breaking.width) {
        pango_layout_set_width(layout_.get(), static_cast<int>(*breaking.width * PANGO_SCALE));
    }
    pango_layout_set_wrap(layout_.get(),
                          breaking.atAnyCharacter ? PANGO_WRAP_CHAR : PANGO_WRAP_WORD_CHAR);
    pango_layout_set_justify(layout_.get(), breaking.justified);
}

void Passage::encode(const StyledText& text, Stretch part, bool singleLine) {
    std::size_t unit = part.start;
    for (const TextRun& run : text.runs(part.start, part.end)) {
        const bool visible = drawnSize(run.font) > 0;
        const std::size_t end = std::min(run.start + run.length, part.end);
        while (unit < end) {
            const std::u16string_view rest = text.text().substr(unit, part.end - unit);
            const char32_t character = decode(rest);
            const bool followedByLineFeed = rest.size() > 1 && rest[1] == '\n';
            const char32_t shown = drawn(character, followedByLineFeed, singleLine);
            offsets_.push_back(static_cast<int>(bytes_.size()));
            append(bytes_, visible || shown == '\n' ? shown : zeroWidthSpace);
            if (character > 0xFFFF) {
                offsets_.push_back(static_cast<int>(bytes_.size()));
            }
            unit += character > 0xFFFF ? 2 : 1;
        }
    }
}

void Passage::apply(const StyledText& text) {
    const Handle<PangoAttrList, pango_attr_list_unref> list(pango_attr_list_new());
    // A word that is broken shows what is in the text, and no hyphen.
    pango_attr_list_insert(list.get(), pango_attr_insert_hyphens_new(FALSE));
    for (const TextRun& run : text.runs(whole_.start, whole_.end)) {
        const Painter painter(list.get(), byteAt(run.start), byteAt(run.start + run.length));
        if (drawnSize(run.font) > 0) {
            painter.putFont(run.font);
        }
        painter.putLook(run);
    }
    pango_layout_set_attributes(layout_.get(), list.get());
}

double Passage::width() const {
    PangoRectangle logical;
    pango_layout_get_extents(layout_.get(), nullptr, &logical);
    return static_cast<double>(logical.width) / PANGO_SCALE;
}

int Passage::byteAt(std::size_t unit) const {
    unit = std::clamp(unit, whole_.start, whole_.end);
    if (unit > elided_.start && unit < elided_.end) {
        unit = elided_.end;
    }
    const std::size_t missing = unit > elided_.start ? elided_.end - elided_.start - 1 : 0;
    return offsets_[unit - whole_.start - missing];
}

std::size_t Passage::unitAt(int byte) const {
    const auto after = std::ranges::upper_bound(offsets_, byte);
    const auto kept =
        static_cast<std::size_t>(std::max(after - offsets_.begin(), std::ptrdiff_t{1}) - 1);
    const std::size_t unit = whole_.start + kept;
    return unit > elided_.start ? unit + (elided_.end - elided_.start - 1) : unit;
}

template <class Visitor>
void Passage::visitPlaces(Visitor visit) const {
    int count = 0;
    const PangoLogAttr* attributes = pango_layout_get_log_attrs_readonly(layout_.get(), &count);
    const char* const first = bytes_.c_str();
    const char* character = first;
    for (int index = 0; index < count; ++index) {
        visit(unitAt(static_cast<int>(character - first)), attributes[index], index == count - 1);
        if (index < count - 1) {
            character = g_utf8_next_char(character);
        }
    }
}

std::vector<std::size_t> Passage::caretPositions() const {
    std::vector<std::size_t> positions;
    visitPlaces([&](std::size_t unit, const PangoLogAttr& place, bool isLast) {
        if (place.is_cursor_position || isLast) {
            positions.push_back(unit);
        }
    });
    return positions;
}

std::vector<Stretch> Passage::words() const {
    std::vector<Stretch> words;
    std::size_t start = 0;
    bool inWord = false;
    visitPlaces([&](std::size_t unit, const PangoLogAttr& place, bool) {
        if (place.is_word_end && inWord) {
            words.push_back({start, unit});
            inWord = false;
        }
        if (place.is_word_start) {
            start = unit;
            inWord = true;
        }
    });
    return words;
}

} // namespace desktop
