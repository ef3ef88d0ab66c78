// Runs the host in a process of its own and talks to it as any script does.
#pragma once

#include "tests/support/temporary_folder.hpp"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <sys/types.h>
#include <vector>

namespace support {

/// How many times as long as usual the host may take: 1, or what WENTRA_PATIENCE says.
[[nodiscard]] int patience();

/// Empty when there is no such file.
[[nodiscard]] std::string readFile(const std::filesystem::path& file);

/// The program's standard input, output and error are ours. At the end its input is closed if it
/// still runs; it is a test failure when it does not end well upon that.
class HostProcess {
public:
    /// Starts `program` with these arguments; its temporary files lie in a folder that ends with
    /// it.
    HostProcess(const char* program, const std::vector<std::string>& arguments);
    HostProcess(const HostProcess&) = delete;
    HostProcess& operator=(const HostProcess&) = delete;
    ~HostProcess();

    /// Sends the request and waits for the response; a test failure and null when none comes.
    nlohmann::json send(const nlohmann::json& request);
    /// The result of a request that must succeed; otherwise a test failure and null.
    nlohmann::json result(const nlohmann::json& request);
    /// The error of a request that must fail; otherwise a test failure and "".
    std::string error(const nlohmann::json& request);
    /// The same for any text in place of a request.
    nlohmann::json sendLine(const std::string& line);

    /// Sends a message to an object or a class, and gives its result.
    nlohmann::json message(const nlohmann::json& receiver, const std::string& selector,
                           std::initializer_list<nlohmann::json> arguments = {});

    /// Writes the text as it is, without waiting.
    void write(const std::string& text);
    /// Ends the process's input.
    void closeInput();
    /// Sends the process a signal.
    void signal(int number);
    /// Waits until the process has ended; its exit status, or minus the signal that ended it. One
    /// that does not end is killed, which is a test failure.
    int wait();
    /// What the process has written to standard error, complete once it has ended.
    [[nodiscard]] std::string errors() const;
    [[nodiscard]] std::filesystem::path temporaryFolder() const { return folder_.path() / "tmp"; }
    /// Standard output up to its end, once the process has ended.
    [[nodiscard]] std::string rest();

private:
    /// Takes in what the process has written; false when there will be no more.
    bool receive();
    /// Takes in what the process writes until it has ended; false when it does not end.
    bool hasEnded();

    TemporaryFolder folder_;
    pid_t process_ = -1;
    int input_ = -1;
    int output_ = -1;
    std::string received_;
};

} // namespace support
