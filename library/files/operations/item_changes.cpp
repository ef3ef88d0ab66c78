// The changes, by the system's own calls: everything is made beside its place and put there as a
// whole.
#include "library/files/operations/item_changes.hpp"

#include "bindings/darwin/copyfile.hpp"
#include "bindings/darwin/removefile.hpp"
#include "bindings/darwin/renamex_np.hpp"
#include "library/files/file_path.hpp"
#include "library/files/operations/passing_name.hpp"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace wentra::files {
namespace {

using Status = struct stat;

/// What the system tells of the entry itself.
std::optional<Status> statusOf(const std::string& path) {
    Status status{};
    return lstat(path.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

bool isFolder(const std::optional<Status>& status) { return status && S_ISDIR(status->st_mode); }

bool areSame(const std::optional<Status>& one, const std::optional<Status>& other) {
    return one && other && one->st_dev == other->st_dev && one->st_ino == other->st_ino;
}

Failure failureOf(int result) { return result == 0 ? 0 : errno; }

/// The entry's path without links in it, but for the entry itself. Nothing for the root and where
/// the folder is not there.
std::optional<std::string> resolved(const std::string& path) {
    std::array<char, 4096> folder; // NOLINT(cppcoreguidelines-pro-type-member-init): it is filled
    const std::string parent(parentOf(path));
    const std::string_view name = lastComponent(path);
    if (name == "/" || name == "." || name == ".." ||
        realpath(parent.empty() ? "." : parent.c_str(), folder.data()) == nullptr) {
        return std::nullopt;
    }
    return joined(folder.data(), name);
}

/// Whether the entry lies somewhere in the folder. Both are resolved.
bool liesIn(std::string_view entry, const std::string& folder) {
    const std::optional<Status> sought = statusOf(folder);
    while (entry != "/") {
        entry = parentOf(entry);
        if (areSame(statusOf(std::string(entry)), sought)) {
            return true;
        }
    }
    return false;
}

/// How two paths lie to one another.
enum class Relation { apart, same, nested, unknown };

Relation relation(const std::string& source, const std::string& destination) {
    const auto from = resolved(source);
    const auto to = resolved(destination);
    if (!from || !to) {
        return Relation::unknown;
    }
    if (*from == *to) {
        return Relation::same;
    }
    return liesIn(*to, *from) || liesIn(*from, *to) ? Relation::nested : Relation::apart;
}

/// Renames where nothing is yet.
Failure settle(const std::string& from, const std::string& to) {
    if (renamex_np(from.c_str(), to.c_str(), darwin::renameExclusive) == 0) {
        return 0;
    }
    if (errno != ENOTSUP) {
        return errno;
    }
    return entryExists(to) ? EEXIST : failureOf(rename(from.c_str(), to.c_str()));
}

/// Exchanges two entries, of which one is a folder, on file systems that cannot.
Failure exchangeBySteps(const std::string& from, const std::string& to) {
    const PassingName name;
    const std::string aside = name.beside(to);
    if (const Failure failure = settle(to, aside); failure != 0) {
        return failure;
    }
    if (const Failure failure = settle(from, to); failure != 0) {
        static_cast<void>(settle(aside, to));
        return failure;
    }
    return settle(aside, from);
}

/// Exchanges the entries, then removes the former destination, which has the source's name now.
Failure exchange(const std::string& from, const std::string& to) {
    Failure failure = failureOf(renamex_np(from.c_str(), to.c_str(), darwin::renameSwap));
    if (failure == ENOTSUP) {
        failure = exchangeBySteps(from, to);
    }
    return failure == 0 ? removeItem(from) : failure;
}

/// Puts an entry of the same volume in its place, over what is there. Whether something is there
/// is known by trying only: another copy may come first.
Failure place(const std::string& from, const std::string& to) {
    if (const Failure failure = settle(from, to); failure != EEXIST) {
        return failure;
    }
    const auto moved = statusOf(from);
    const auto former = statusOf(to);
    // Renaming does nothing for two names of one file.
    if (isFolder(moved) || isFolder(former) || areSame(moved, former)) {
        return exchange(from, to);
    }
    return failureOf(rename(from.c_str(), to.c_str()));
}

Failure copyTo(const std::string& source, const std::string& fresh) {
    const auto status = statusOf(source);
    if (!status) {
        return errno;
    }
    const auto how = darwin::copyfileAll | darwin::copyfileNoFollow | darwin::copyfileExclusive |
                     (isFolder(status) ? darwin::copyfileRecursive : darwin::copyfileClone);
    return failureOf(copyfile(source.c_str(), fresh.c_str(), nullptr, how));
}

using Put = Failure (*)(const std::string& from, const std::string& to);

Failure copyThen(Put put, const std::string& source, const std::string& destination) {
    const PassingName name;
    const std::string copy = name.beside(destination);
    Failure failure = copyTo(source, copy);
    if (failure == 0) {
        failure = put(copy, destination);
    }
    if (failure != 0) {
        static_cast<void>(removeItem(copy));
    }
    return failure;
}

Failure moveBy(Put put, const std::string& source, const std::string& destination) {
    Failure failure = put(source, destination);
    if (failure == EXDEV) { // another volume
        failure = copyThen(put, source, destination);
        return failure != 0 ? failure : removeItem(source);
    }
    return failure;
}

/// What forbids the change, before anything is touched.
Failure refusal(const std::string& source, Relation relation) {
    if (!entryExists(source)) {
        return errno;
    }
    return relation == Relation::nested || relation == Relation::unknown ? EINVAL : 0;
}

Failure fresh(const std::string& source, const std::string& destination,
              Failure (*change)(Put, const std::string&, const std::string&)) {
    const Failure refused = refusal(source, relation(source, destination));
    if (refused != 0) {
        return refused;
    }
    return entryExists(destination) ? EEXIST : change(&settle, source, destination);
}

Failure over(const std::string& source, const std::string& destination,
             Failure (*change)(Put, const std::string&, const std::string&)) {
    const Relation how = relation(source, destination);
    const Failure refused = refusal(source, how);
    if (refused != 0 || how == Relation::same) {
        return refused;
    }
    return change(&place, source, destination);
}

} // namespace

bool entryExists(const std::string& path) { return statusOf(path).has_value(); }

Failure copyItem(const std::string& source, const std::string& destination) {
    return fresh(source, destination, &copyThen);
}

Failure replaceByCopy(const std::string& source, const std::string& destination) {
    return over(source, destination, &copyThen);
}

Failure moveItem(const std::string& source, const std::string& destination) {
    return fresh(source, destination, &moveBy);
}

Failure replaceByMove(const std::string& source, const std::string& destination) {
    return over(source, destination, &moveBy);
}

Failure removeItem(const std::string& path) {
    return failureOf(removefile(path.c_str(), nullptr, darwin::removefileRecursive));
}

Failure makeFile(const std::string& path) {
    constexpr mode_t everybody = 0666;
    const int made = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, everybody);
    return made < 0 ? errno : failureOf(close(made));
}

Failure makeFolder(const std::string& path) {
    constexpr mode_t everybody = 0777;
    for (std::size_t end = path.find('/', 1); end != path.npos; end = path.find('/', end + 1)) {
        static_cast<void>(mkdir(path.substr(0, end).c_str(), everybody));
    }
    return failureOf(mkdir(path.c_str(), everybody));
}

} // namespace wentra::files
