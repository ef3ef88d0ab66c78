// The lines of one translation on their way back, in whatever order they come.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wentra::toolbox {

/// Collects the translated lines of one text. The one answer that completes the batch yields the
/// whole; while a line is missing, because its request failed, none does.
class TranslationBatch {
public:
    explicit TranslationBatch(std::size_t lineCount) : lines_(lineCount), outstanding_(lineCount) {}

    /// The line's translation has come. When it was the last one outstanding: all translations,
    /// joined by line breaks.
    std::optional<std::u16string> complete(std::size_t line, std::u16string_view translation);

private:
    std::vector<std::u16string> lines_;
    std::size_t outstanding_;
};

} // namespace wentra::toolbox
