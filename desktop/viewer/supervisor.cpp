// Children, their ends, and the signals in between.
#include "desktop/viewer/supervisor.hpp"

#include "desktop/runtime/process_end.hpp"
#include "desktop/runtime/stop_request.hpp"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace desktop::viewer {
namespace {

constexpr char nameEnd = '\n';

/// The two ends through which a child names its successor.
struct Pipe {
    Pipe() {
        if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            throw std::system_error(errno, std::generic_category(), "cannot make a pipe");
        }
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        close(ends[0]);
        close(ends[1]);
    }
    /// What was written, all at once; empty when nothing was.
    [[nodiscard]] std::string content() const {
        std::array<char, 256> text{};
        const ssize_t length = read(ends[0], text.data(), text.size());
        return {text.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
    }

    std::array<int, 2> ends{};
};

pid_t startChild(const Start& start, const std::function<int(const Start&)>& phone) {
    const pid_t parent = getpid();
    std::fflush(nullptr); // or both would write it
    const pid_t process = fork();
    if (process < 0) {
        throw std::system_error(errno, std::generic_category(), "cannot start a process");
    }
    if (process > 0) {
        return process;
    }
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) {
        std::exit(EXIT_FAILURE);
    }
    endProcess(phone(start));
}

/// The status of the child's end. A request to stop is passed on to it, and enforced when it does
/// not come to its end within a moment.
int waitFor(pid_t process) {
    constexpr int forEver = -1;
    constexpr int patienceInMilliseconds = 150;
    const int end = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
    std::array<pollfd, 2> watched{{{end, POLLIN, 0}, {stop_request::descriptor(), POLLIN, 0}}};
    while (poll(watched.data(), watched.size(), forEver) < 0) { // a signal's handler ran
    }
    if (stop_request::isMade()) {
        kill(process, SIGTERM);
    }
    int ended = 0;
    while ((ended = poll(watched.data(), 1, patienceInMilliseconds)) < 0) {
    }
    if (ended == 0) {
        kill(process, SIGKILL);
    }
    close(end);
    int status = 0;
    waitpid(process, &status, 0);
    return status;
}

/// Whether crashes come too fast for another try to help.
class Crashes {
public:
    bool areTooMany() {
        using Clock = std::chrono::steady_clock;
        constexpr std::chrono::seconds period(30);
        constexpr std::size_t most = 3;
        const auto now = Clock::now();
        moments_.push_back(now);
        while (now - moments_.front() > period) {
            moments_.pop_front();
        }
        return moments_.size() > most;
    }

private:
    std::deque<std::chrono::steady_clock::time_point> moments_;
};

/// The child has named what is to come in its place.
void replace(Start& start, const std::string& successor) {
    const auto end = successor.find(nameEnd);
    start.application = successor.substr(0, end);
    start.settings = successor.substr(end + 1);
    start.rests = false;
}

void tellOfCrash(const Start& start, int signal) {
    std::fprintf(stderr, "host: %s crashed: %s\n", start.application.c_str(), strsignal(signal));
    if (start.rests) {
        std::fprintf(stderr, "host: it crashes again and again: the page can start it\n");
    }
}

} // namespace

int supervise(std::string application, const std::function<int(const Start&)>& phone) {
    Crashes crashes;
    Start start;
    start.application = std::move(application);
    while (!stop_request::isMade()) {
        const Pipe names;
        start.successor = names.ends[1];
        const int status = waitFor(startChild(start, phone));
        if (stop_request::isMade()) {
            break;
        }
        start.afterCrash = WIFSIGNALED(status);
        if (const std::string successor = names.content(); !successor.empty()) {
            replace(start, successor);
        } else if (!start.afterCrash) {
            return WEXITSTATUS(status);
        } else if (start.rests) {
            return EXIT_FAILURE;
        } else {
            start.rests = crashes.areTooMany();
            tellOfCrash(start, WTERMSIG(status));
        }
    }
    return EXIT_SUCCESS;
}

void nameSuccessor(const Start& start, const std::string& application,
                   const std::string& settings) {
    const std::string text = application + nameEnd + settings;
    // Shorter than what a pipe takes at once; a full pipe already holds a name.
    static_cast<void>(!write(start.successor, text.data(), text.size()));
}

} // namespace desktop::viewer
