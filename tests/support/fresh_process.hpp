// Runs code in a process of its own: what is looked up once per process starts anew there, unless
// this process has looked it up already.
#pragma once

#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

/// What `body` returns, called in a child of this process; how the child ended if it did not
/// return.
template <typename Body>
std::string inFreshProcess(Body body) {
    int ends[2];
    if (pipe(ends) != 0) {
        return "no pipe";
    }
    const pid_t child = fork();
    if (child == 0) {
        const std::string result = body();
        const bool written =
            write(ends[1], result.data(), result.size()) == static_cast<ssize_t>(result.size());
        _exit(written ? 0 : 1);
    }
    close(ends[1]);
    std::string result;
    char buffer[4096];
    for (ssize_t count; (count = read(ends[0], buffer, sizeof buffer)) > 0;) {
        result.append(buffer, static_cast<std::size_t>(count));
    }
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return status == 0 ? result : "ended with status " + std::to_string(status);
}

} // namespace support
