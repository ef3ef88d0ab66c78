// Reading and writing lines over file descriptors.
#include "desktop/host/streams.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace desktop::host {
namespace {

/// A copy that child processes do not get.
int privateCopy(int descriptor) { return fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1); }

bool isReadable(int descriptor) {
    pollfd watched{descriptor, POLLIN, 0};
    return poll(&watched, 1, 0) > 0;
}

} // namespace

Streams::Streams() : input_(privateCopy(STDIN_FILENO)), output_(privateCopy(STDOUT_FILENO)) {
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    dup2(nothing, STDIN_FILENO);
    close(nothing);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    std::signal(SIGPIPE, SIG_IGN); // `write` tells instead
}

void Streams::receive() {
    std::array<char, 1U << 16U> buffer{};
    while (!ended_ && isReadable(input_)) {
        const ssize_t count = read(input_, buffer.data(), buffer.size());
        if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
            return;
        }
        ended_ = count <= 0;
        std::string_view rest(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find('\n'), rest.size());
            unfinished_ += rest.substr(0, std::min(end, longestLine + 1 - unfinished_.size()));
            if (end == rest.size()) {
                break;
            }
            lines_.push_back(std::exchange(unfinished_, {}));
            rest.remove_prefix(end + 1);
        }
        if (!lines_.empty()) {
            return; // answer these first: the writer may be waiting
        }
    }
    if (ended_ && !unfinished_.empty()) {
        lines_.push_back(std::exchange(unfinished_, {}));
    }
}

std::optional<std::string> Streams::nextLine() {
    if (lines_.empty()) {
        return std::nullopt;
    }
    std::string line = std::move(lines_.front());
    lines_.pop_front();
    return line;
}

bool Streams::write(std::string_view line) {
    std::string text(line);
    text += '\n';
    std::string_view rest = text;
    while (!rest.empty()) {
        const ssize_t count = ::write(output_, rest.data(), rest.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        rest.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return true;
}

} // namespace desktop::host
