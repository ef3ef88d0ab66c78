// Counts answers.
#include "library/toolbox/translation/translation_batch.hpp"

#include "library/common/text_parts.hpp"

namespace wentra::toolbox {

std::optional<std::u16string> TranslationBatch::complete(std::size_t line,
                                                         std::u16string_view translation) {
    lines_.at(line) = translation;
    if (--outstanding_ != 0) {
        return std::nullopt;
    }
    return joined(lines_, u"\n");
}

} // namespace wentra::toolbox
