// The protocol's own ends of standard input and output, which nothing else in the process can
// reach.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace desktop::host {

/// Takes standard input and output away from the process: whatever else prints goes to standard
/// error, whatever else reads finds the end of input. Make it once, before anything prints.
class Streams {
public:
    Streams();
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;

    /// Readable when `receive` has something to do.
    [[nodiscard]] int input() const { return input_; }
    /// Takes in what has arrived, without waiting.
    void receive();
    /// The next whole line without its line break; at the end of input also a last line without
    /// one. Nothing while no line is complete.
    std::optional<std::string> nextLine();
    /// Whether the input has ended; lines may be left.
    [[nodiscard]] bool ended() const { return ended_; }

    /// Writes the line and a line break; false when nobody reads any more.
    bool write(std::string_view line);

    /// Of a longer line only one byte more than this is kept, by which it can be told.
    static constexpr std::size_t longestLine = std::size_t{64} << 20U;

private:
    int input_;
    int output_;
    bool ended_ = false;
    std::deque<std::string> lines_;
    std::string unfinished_;
};

} // namespace desktop::host
