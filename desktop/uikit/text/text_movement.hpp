// Where keys take the caret.
#pragma once

namespace desktop {

/// To the character, line, word or end of a line or of the text on that side.
enum class TextMovement {
    left,
    right,
    up,
    down,
    wordLeft,
    wordRight,
    lineStart,
    lineEnd,
    start,
    end
};

} // namespace desktop
