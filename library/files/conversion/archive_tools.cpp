// Programs of their own, in a working folder of their own, without an environment.
#include "library/files/conversion/archive_tools.hpp"

#include "bindings/darwin/removefile.hpp"
#include "library/paths/root_path.hpp"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

namespace wentra::files {
namespace {

/// The system's limit, and that of the jailbreak's library.
constexpr std::size_t longestPath = 1024;

/// A folder that is removed with what is in it.
class WorkingFolder {
public:
    WorkingFolder() : made_(mkdtemp(path_.data()) != nullptr) {}
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder() {
        if (made_) {
            removefile(path(), nullptr, darwin::removefileRecursive);
        }
    }

    [[nodiscard]] bool isThere() const { return made_; }
    [[nodiscard]] const char* path() const { return path_.c_str(); }

private:
    static std::string pattern() {
        const char* const temporary = std::getenv("TMPDIR");
        return std::string(temporary == nullptr ? "/tmp" : temporary) + "/wentra-package-XXXXXX";
    }

    std::string path_ = pattern();
    bool made_;
};

/// As it leads to the same file from another folder.
std::string absolute(const std::string& path) {
    std::array<char, longestPath> current{};
    const bool isRelative = !path.starts_with('/');
    return isRelative && getcwd(current.data(), current.size()) != nullptr
               ? std::string(current.data()) + "/" + path
               : path;
}

std::string resolved(const char* tool) {
    std::array<char, longestPath> path{};
    const char* const found = paths::libroot_dyn_jbrootpath(tool, path.data());
    return found == nullptr ? tool : found;
}

template <std::size_t Count>
void runAndWait(const char* tool, std::array<std::string, Count> arguments, const char* folder) {
    std::string program = resolved(tool);
    std::array<char*, Count + 2> line{program.data()};
    for (std::size_t index = 0; index < Count; ++index) {
        line.at(index + 1) = arguments.at(index).data();
    }
    std::array<char*, 1> environment{};
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, folder);
    pid_t process = 0;
    if (posix_spawn(&process, program.c_str(), &actions, nullptr, line.data(),
                    environment.data()) == 0) {
        int status = 0;
        while (waitpid(process, &status, 0) == -1 && errno == EINTR) {
        }
    }
    posix_spawn_file_actions_destroy(&actions);
}

} // namespace

void unpackPackage(const std::string& package, const std::string& folder) {
    if (const WorkingFolder working; working.isThere()) {
        runAndWait<2>("/usr/bin/ar", {"-x", absolute(package)}, working.path());
        runAndWait<4>("/usr/bin/tar", {"-xf", "data.tar.xz", "-C", absolute(folder)},
                      working.path());
    }
}

} // namespace wentra::files
