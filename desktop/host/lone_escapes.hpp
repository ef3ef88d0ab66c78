// Escapes of surrogates that stand alone (`\ud83d`), which JSON permits and its readers refuse.
#pragma once

#include <deque>
#include <string>

namespace desktop::host {

/// A line for a reader, and what the reader's strings really hold.
class LoneEscapes {
public:
    /// Writes `\ufffd` in the line where such an escape stands, so that nothing changes its place.
    explicit LoneEscapes(std::string& line);

    /// Puts the surrogates back, each as `bytesOfHalf`; to be called with each string and key of
    /// the line, as they come.
    void putBack(std::string& text);

private:
    /// Looks at what stands there; how many bytes that takes.
    std::size_t take(std::string& line, std::size_t at);
    std::size_t takeEscape(std::string& line, std::size_t at, char16_t unit);

    /// For each U+FFFD of the line what it stands for, itself or a surrogate.
    std::deque<char16_t> meant_;
};

} // namespace desktop::host
