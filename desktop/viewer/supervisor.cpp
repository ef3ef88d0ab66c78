// Children, their ends, and the signals in between.
#include "desktop/viewer/supervisor.hpp"

#include "desktop/runtime/process_end.hpp"

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace desktop::viewer {
namespace {

constexpr std::array stopSignals{SIGINT, SIGTERM, SIGHUP};

std::atomic<pid_t> child{0};
std::atomic<bool> stopRequested{false};

void passOn(int) {
    stopRequested = true;
    if (const pid_t running = child; running > 0) {
        kill(running, SIGTERM);
    }
}

void handleStopSignals(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    for (const int signal : stopSignals) {
        sigaction(signal, &action, nullptr);
    }
}

/// Holds stop signals back, so that none falls between a decision and its consequence.
class SignalsHeld {
public:
    SignalsHeld() {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : stopSignals) {
            sigaddset(&held, signal);
        }
        sigprocmask(SIG_BLOCK, &held, &former_);
    }
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;
    ~SignalsHeld() { sigprocmask(SIG_SETMASK, &former_, nullptr); }

private:
    sigset_t former_{};
};

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

/// Starts the child unless a stop has been requested; then it gives 0.
pid_t startChild(const Start& start, const std::function<int(const Start&)>& phone) {
    const pid_t parent = getpid();
    const SignalsHeld held;
    if (stopRequested) {
        return 0;
    }
    std::fflush(nullptr); // or both would write it
    const pid_t process = fork();
    if (process < 0) {
        throw std::system_error(errno, std::generic_category(), "cannot start a process");
    }
    if (process > 0) {
        child = process;
        return process;
    }
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    handleStopSignals(SIG_DFL);
    if (getppid() != parent) {
        std::exit(EXIT_FAILURE);
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    endProcess(phone(start));
}

int waitFor(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    child = 0;
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

} // namespace

int supervise(std::string application, const std::function<int(const Start&)>& phone) {
    handleStopSignals(&passOn);
    Crashes crashes;
    Start start{std::move(application)};
    for (;;) {
        const Pipe names;
        start.successor = names.ends[1];
        const pid_t process = startChild(start, phone);
        if (process == 0) {
            return EXIT_SUCCESS;
        }
        const int status = waitFor(process);
        if (stopRequested) {
            return EXIT_SUCCESS;
        }
        start.afterCrash = WIFSIGNALED(status);
        if (const std::string successor = names.content(); !successor.empty()) {
            start.application = successor;
            start.rests = false;
        } else if (!start.afterCrash) {
            return WEXITSTATUS(status);
        } else if (std::exchange(start.rests, false)) {
            return EXIT_FAILURE;
        } else {
            std::fprintf(stderr, "host: %s crashed: %s\n", start.application.c_str(),
                         strsignal(WTERMSIG(status)));
            if (start.rests = crashes.areTooMany(); start.rests) {
                std::fprintf(stderr, "host: it crashes again and again: the page can start it\n");
            }
        }
    }
}

void nameSuccessor(const Start& start, const std::string& application) {
    // Shorter than what a pipe takes at once; a full pipe already holds a name.
    static_cast<void>(!write(start.successor, application.data(), application.size()));
}

} // namespace desktop::viewer
