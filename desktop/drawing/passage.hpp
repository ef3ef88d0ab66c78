// A stretch of styled text shaped by Pango, relating UTF-16 units to Pango's UTF-8 bytes.
#pragma once

#include "desktop/drawing/handle.hpp"
#include "desktop/drawing/styled_text.hpp"

#include <pango/pango.h>

#include <string>
#include <vector>

namespace desktop {

/// How a passage is broken into lines.
struct Breaking {
    /// Points; without one, lines end only where the text has a line break.
    std::optional<double> width = {};
    bool atAnyCharacter = false;
    bool justified = false;
    /// Line breaks are set as spaces.
    bool singleLine = false;
};

class Passage {
public:
    /// `elided`, which must lie within `whole` and not be empty, is replaced by an ellipsis.
    Passage(const StyledText& text, Stretch whole, std::optional<Stretch> elided,
            const Breaking& breaking);

    /// Owned by the passage.
    PangoLayout* layout() const { return layout_.get(); }
    /// The width of the widest line, in points.
    double width() const;

    /// Units out of the passage count as its ends; those elided as the ends of the ellipsis.
    int byteAt(std::size_t unit) const;
    std::size_t unitAt(int byte) const;

    /// Where a caret can stand, in ascending order, both ends of the passage included.
    std::vector<std::size_t> caretPositions() const;
    /// The words of the passage, in ascending order.
    std::vector<Stretch> words() const;

private:
    /// Calls back with each place between characters, ends included: its unit, what Pango says.
    template <class Visitor>
    void visitPlaces(Visitor visit) const;
    void encode(const StyledText& text, Stretch part, bool singleLine);
    void apply(const StyledText& text);

    Stretch whole_;
    Stretch elided_;
    std::string bytes_;
    // For every unit that is kept and for the ellipsis, where its bytes begin; and the end.
    std::vector<int> offsets_;
    Handle<PangoLayout, g_object_unref> layout_;
};

} // namespace desktop
