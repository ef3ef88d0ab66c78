// The library's side of the C library: what it asks of files and texts, by the phone's own numbers
// and structures.
#include "tests/host/borders/library.hpp"

#include "bindings/darwin/renamex_np.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/peer.hpp"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace tests {
namespace {

struct Clerk : objc::Kind<Clerk, "Clerk"> {
    using Kind::Kind;
};

ns::String errorAsked(int result) {
    const int error = result < 0 ? errno : 0;
    return ns::String::fromUtf8(error == EEXIST    ? "EEXIST"
                                : error == ENOTSUP ? "ENOTSUP"
                                : error == 0       ? ""
                                                   : "another");
}

DIR* opened(ns::String folder) {
    return fdopendir(open(folder.utf8().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

class ClerkPeer : public objc::Peer<ClerkPeer, Clerk> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"statusOf:", &ClerkPeer::status<&ask>>(),
            objc::method<"statusOfLink:", &ClerkPeer::status<&askLink>>(),
            objc::method<"statusOfOpen:", &ClerkPeer::status<&askOpen>>(),
            objc::method<"statusInFolder:", &ClerkPeer::status<&askInFolder>>(),
            objc::method<"kindsIn:", &ClerkPeer::kinds>(),
            objc::method<"readsTwice:", &ClerkPeer::readsTwice>(),
            objc::method<"make:", &ClerkPeer::make>(),
            objc::method<"swap:with:", &ClerkPeer::swap>(),
            objc::method<"said", &ClerkPeer::said>(),
        };
    }

private:
    static int ask(const std::string& path, struct stat* found) {
        return stat(path.c_str(), found);
    }
    static int askLink(const std::string& path, struct stat* found) {
        return lstat(path.c_str(), found);
    }
    static int askOpen(const std::string& path, struct stat* found) {
        const int file = open(path.c_str(), O_RDONLY);
        const int result = fstat(file, found);
        close(file);
        return result;
    }
    static int askInFolder(const std::string& path, struct stat* found) {
        const std::size_t slash = path.rfind('/');
        const int folder = open(path.substr(0, slash).c_str(), O_RDONLY | O_DIRECTORY);
        const int result =
            fstatat(folder, path.substr(slash + 1).c_str(), found, AT_SYMLINK_NOFOLLOW);
        close(folder);
        return result;
    }

    /// "MODE LINKS SIZE".
    template <auto ask>
    ns::String status(ns::String path) {
        struct stat found {};
        if (ask(path.utf8(), &found) != 0) {
            return nullptr;
        }
        std::array<char, 64> text{};
        std::snprintf(text.data(), text.size(), "%o %d %ld", static_cast<unsigned>(found.st_mode),
                      static_cast<int>(found.st_nlink), static_cast<long>(found.st_size));
        return ns::String::fromUtf8(text.data());
    }

    /// "NAME:KIND " for each entry, by name.
    ns::String kinds(ns::String path) {
        DIR* const folder = opened(path);
        std::vector<std::string> lines;
        while (const dirent* entry = readdir(folder)) {
            lines.push_back(std::string(entry->d_name) + ":" +
                            std::to_string(unsigned{entry->d_type}) + " ");
        }
        closedir(folder);
        std::ranges::sort(lines);
        std::string all;
        for (const std::string& line : lines) {
            all += line;
        }
        return ns::String::fromUtf8(all);
    }

    /// Whether an entry stays as it is while the folder is read a second time.
    bool readsTwice(ns::String path) {
        const std::array folders{opened(path), opened(path)};
        const dirent* const first = readdir(folders[0]);
        const std::string name = first->d_name;
        while (readdir(folders[1]) != nullptr) {
        }
        const bool stayed = name == first->d_name;
        std::ranges::for_each(folders, &closedir);
        return stayed;
    }

    ns::String make(ns::String path) {
        constexpr int mode = 0640;
        const int file = open(path.utf8().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        const ns::String error = errorAsked(file);
        close(file);
        return error;
    }

    ns::String swap(ns::String one, ns::String other) {
        return errorAsked(renamex_np(one.utf8().c_str(), other.utf8().c_str(), darwin::renameSwap));
    }

    /// Numbers of both sorts, more than there are registers for.
    ns::String said() {
        std::array<char, 64> text{};
        std::snprintf(text.data(), text.size(), "%d%s%d %.2f%.1f %c%ld%d %.0f%d%d", 1, "two", 3,
                      4.25, 5.5, '6', 7L, 8, 9.0, 10, -11);
        return ns::String::fromUtf8(text.data());
    }
};

} // namespace

void registerClerk() { ClerkPeer::registerClass(); }

} // namespace tests
