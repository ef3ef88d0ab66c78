// Counts answers and joins lines.
#include "library/toolbox/translation/translation_batch.hpp"

namespace wentra::toolbox {

std::optional<std::u16string> TranslationBatch::complete(std::size_t line,
                                                         std::u16string_view translation) {
    lines_.at(line) = translation;
    if (--outstanding_ != 0) {
        return std::nullopt;
    }
    std::u16string joined;
    for (const std::u16string& each : lines_) {
        if (&each != &lines_.front()) {
            joined += u'\n';
        }
        joined += each;
    }
    return joined;
}

} // namespace wentra::toolbox
