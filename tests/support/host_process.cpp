// Spawning the host and exchanging lines with it.
#include "tests/support/host_process.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {
namespace {

using nlohmann::json;

int patienceInMilliseconds() { return 60'000 * patience(); }

std::pair<int, int> makePipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        std::abort();
    }
    return {ends[0], ends[1]};
}

/// In the child: becomes the program.
[[noreturn]] void become(const char* program, std::vector<std::string> arguments, int input,
                         int output, const std::filesystem::path& folder) {
    const std::filesystem::path errors = folder / "errors";
    setenv("TMPDIR", (folder / "tmp").c_str(), 1);
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(open(errors.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600), STDERR_FILENO);
    arguments.insert(arguments.begin(), program);
    std::vector<char*> words;
    for (std::string& argument : arguments) {
        words.push_back(argument.data());
    }
    words.push_back(nullptr);
    execv(program, words.data());
    _exit(127);
}

} // namespace

int patience() {
    constexpr int most = 1000;
    const char* const times = std::getenv("WENTRA_PATIENCE");
    return std::clamp(times == nullptr ? 1 : std::atoi(times), 1, most);
}

std::string readFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

HostProcess::HostProcess(const char* program, const std::vector<std::string>& arguments) {
    std::signal(SIGPIPE, SIG_IGN); // the host may be gone when we write
    std::filesystem::create_directory(temporaryFolder());
    const auto [theirInput, ourInput] = makePipe();
    const auto [ourOutput, theirOutput] = makePipe();
    process_ = fork();
    if (process_ == 0) {
        become(program, arguments, theirInput, theirOutput, folder_.path());
    }
    close(theirInput);
    close(theirOutput);
    input_ = ourInput;
    output_ = ourOutput;
}

HostProcess::~HostProcess() {
    closeInput();
    if (process_ > 0) {
        EXPECT_EQ(wait(), 0) << "the host did not end well\n" << errors();
    }
    close(output_);
}

void HostProcess::write(const std::string& text) {
    std::string_view left = text;
    while (!left.empty()) {
        const ssize_t count = ::write(input_, left.data(), left.size());
        if (count <= 0) {
            return;
        }
        left.remove_prefix(static_cast<std::size_t>(count));
    }
}

void HostProcess::closeInput() {
    if (input_ >= 0) {
        close(std::exchange(input_, -1));
    }
}

void HostProcess::signal(int number) { kill(process_, number); }

bool HostProcess::receive() {
    std::array<char, 1U << 16U> buffer{};
    const ssize_t count = read(output_, buffer.data(), buffer.size());
    received_.append(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return count > 0;
}

json HostProcess::sendLine(const std::string& line) {
    write(line + '\n');
    std::size_t end = 0;
    while ((end = received_.find('\n')) == std::string::npos) {
        pollfd watched{output_, POLLIN, 0};
        if (poll(&watched, 1, patienceInMilliseconds()) <= 0 || !receive()) {
            ADD_FAILURE() << "no answer to " << line.substr(0, 200) << "\n" << errors();
            return nullptr;
        }
    }
    json response = json::parse(received_.substr(0, end), nullptr, false);
    received_.erase(0, end + 1);
    return response;
}

json HostProcess::send(const json& request) { return sendLine(request.dump()); }

json HostProcess::result(const json& request) {
    const json response = send(request);
    if (!response.is_object() || response.value("ok", false) != true) {
        ADD_FAILURE() << request << " gave " << response;
        return nullptr;
    }
    return response.at("result");
}

std::string HostProcess::error(const json& request) {
    const json response = send(request);
    if (!response.is_object() || response.value("ok", true) != false) {
        ADD_FAILURE() << request << " gave " << response;
        return "";
    }
    return response.at("error");
}

json HostProcess::message(const json& receiver, const std::string& selector,
                          std::initializer_list<json> arguments) {
    return result({{"do", "send"},
                   {"to", receiver},
                   {"selector", selector},
                   {"args", std::vector<json>(arguments)}});
}

bool HostProcess::hasEnded() {
    const int process = static_cast<int>(syscall(SYS_pidfd_open, process_, 0));
    std::array<pollfd, 2> watched{{{process, POLLIN, 0}, {output_, POLLIN, 0}}};
    int ready = 0;
    while ((ready = poll(watched.data(), watched.size(), patienceInMilliseconds())) > 0 &&
           watched[1].revents != 0) {
        if (!receive()) {
            watched[1].fd = -1; // closed: only the end is left to wait for
        }
    }
    close(process);
    return ready > 0;
}

int HostProcess::wait() {
    if (process_ <= 0) {
        return -1;
    }
    if (!hasEnded()) {
        ADD_FAILURE() << "the host does not end";
        kill(process_, SIGKILL);
    }
    int status = 0;
    waitpid(std::exchange(process_, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::string HostProcess::errors() const { return readFile(folder_.path() / "errors"); }

std::string HostProcess::rest() {
    if (process_ > 0) {
        EXPECT_TRUE(hasEnded()) << "the host does not end";
    }
    return std::exchange(received_, {});
}

} // namespace support
