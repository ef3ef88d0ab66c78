// Copies of files, links and trees, with permissions, dates and extended attributes.
#include "bindings/darwin/copyfile.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <linux/limits.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) {
            close(number_);
        }
    }
    /// Writing may fail as late as here.
    bool closed() { return close(std::exchange(number_, -1)) == 0; }
    [[nodiscard]] int get() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }

private:
    int number_;
};

bool writeAll(int to, const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t count = write(to, bytes, size);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        const auto written = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        bytes += written;
        size -= written;
    }
    return true;
}

bool copyBytes(int from, int to) {
    constexpr std::size_t blockSize = 1 << 17;
    std::vector<char> block(blockSize);
    for (;;) {
        const ssize_t count = read(from, block.data(), block.size());
        if (count == 0) {
            return true;
        }
        if ((count < 0 && errno != EINTR) ||
            (count > 0 && !writeAll(to, block.data(), static_cast<std::size_t>(count)))) {
            return false;
        }
    }
}

/// Attributes that the other file system has no room for are left out.
void copyAttributes(const char* from, const char* to) {
    const ssize_t size = llistxattr(from, nullptr, 0);
    std::string names(static_cast<std::size_t>(std::max<ssize_t>(size, 0)), '\0');
    if (names.empty() || llistxattr(from, names.data(), names.size()) != size) {
        return;
    }
    for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
        const char* const name = names.c_str() + at;
        std::array<char, XATTR_SIZE_MAX> value;
        const ssize_t length = lgetxattr(from, name, value.data(), value.size());
        if (length >= 0) {
            lsetxattr(to, name, value.data(), static_cast<std::size_t>(length), 0);
        }
    }
}

/// The owner is kept where that is allowed. The dates come last: what is done before changes them.
bool copyStatus(const char* from, const char* to, const struct stat& status) {
    copyAttributes(from, to);
    static_cast<void>(lchown(to, status.st_uid, status.st_gid) == 0);
    const std::array times{status.st_atim, status.st_mtim};
    return (S_ISLNK(status.st_mode) || chmod(to, status.st_mode & 07777) == 0) &&
           utimensat(AT_FDCWD, to, times.data(), AT_SYMLINK_NOFOLLOW) == 0;
}

bool copyFile(const char* from, const char* to) {
    const Descriptor source(open(from, O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    constexpr mode_t untilItIsWhole = 0600;
    Descriptor copy(source ? open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, untilItIsWhole)
                           : -1);
    return copy && copyBytes(source.get(), copy.get()) && copy.closed();
}

bool copyLink(const char* from, const char* to) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlink(from, target.data(), target.size() - 1);
    return length >= 0 && symlink(target.data(), to) == 0;
}

std::string below(const std::string& folder, const std::string& name) {
    std::string path = folder;
    return path.append("/").append(name);
}

bool copyTree(const std::string& from, const std::string& to);

bool copyFolder(const std::string& from, const std::string& to) {
    constexpr mode_t untilItIsWhole = 0700;
    if (mkdir(to.c_str(), untilItIsWhole) != 0) {
        return false;
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(from.c_str()), &closedir);
    errno = folder ? 0 : errno;
    while (const dirent* entry = folder ? readdir(folder.get()) : nullptr) {
        const std::string name = entry->d_name;
        if (name != "." && name != ".." && !copyTree(below(from, name), below(to, name))) {
            return false;
        }
        errno = 0;
    }
    return errno == 0;
}

bool copyTree(const std::string& from, const std::string& to) {
    struct stat status {};
    if (lstat(from.c_str(), &status) != 0) {
        return false;
    }
    bool made = false;
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        made = copyFile(from.c_str(), to.c_str());
        break;
    case S_IFDIR:
        made = copyFolder(from, to);
        break;
    case S_IFLNK:
        made = copyLink(from.c_str(), to.c_str());
        break;
    default:
        errno = ENOTSUP;
    }
    return made && copyStatus(from.c_str(), to.c_str(), status);
}

} // namespace

int copyfile(const char* from, const char* to, copyfile_state_t, copyfile_flags_t flags) {
    constexpr copyfile_flags_t played = darwin::copyfileAll | darwin::copyfileRecursive |
                                        darwin::copyfileExclusive | darwin::copyfileNoFollow |
                                        darwin::copyfileClone;
    constexpr copyfile_flags_t needed =
        darwin::copyfileAll | darwin::copyfileExclusive | darwin::copyfileNoFollow;
    struct stat status {};
    if (lstat(from, &status) != 0) {
        return -1;
    }
    const bool fits = !S_ISDIR(status.st_mode) || ((flags & darwin::copyfileRecursive) != 0 &&
                                                   (flags & darwin::copyfileClone) == 0);
    if ((flags & ~played) != 0 || (flags & needed) != needed || !fits) {
        errno = ENOTSUP; // the other ways of copying are not played
        return -1;
    }
    return copyTree(from, to) ? 0 : -1;
}
