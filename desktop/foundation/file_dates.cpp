// Dates that are kept for files, by what identifies them.
#include "desktop/foundation/file_dates.hpp"

#include <algorithm>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <optional>
#include <sys/stat.h>
#include <tuple>

namespace desktop::foundation {
namespace {

/// A file that is gone may leave its number to another one, which was made at another time.
using Identity = std::tuple<unsigned, unsigned, unsigned long long, long long>;

struct Kept {
    std::mutex mutex;
    std::map<Identity, double> dates;
};

Kept& kept() {
    static auto* all = new Kept;
    return *all;
}

std::optional<struct statx> statusOf(const std::string& path) {
    struct statx status {};
    const bool known = statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW,
                             STATX_BASIC_STATS | STATX_BTIME, &status) == 0;
    return known ? std::optional(status) : std::nullopt;
}

double seconds(const statx_timestamp& time) {
    return static_cast<double>(time.tv_sec) + time.tv_nsec / 1e9;
}

Identity identityOf(const struct statx& status) {
    return {status.stx_dev_major, status.stx_dev_minor, status.stx_ino, status.stx_btime.tv_sec};
}

} // namespace

std::optional<double> creationDate(const std::string& path) {
    const auto status = statusOf(path);
    if (!status) {
        return std::nullopt;
    }
    const std::lock_guard lock(kept().mutex);
    const auto set = kept().dates.find(identityOf(*status));
    if (set != kept().dates.end()) {
        return set->second;
    }
    const double changed = seconds(status->stx_mtime);
    return (status->stx_mask & STATX_BTIME) != 0 ? std::min(seconds(status->stx_btime), changed)
                                                 : changed;
}

bool setCreationDate(const std::string& path, double secondsSince1970) {
    const auto status = statusOf(path);
    if (status) {
        const std::lock_guard lock(kept().mutex);
        kept().dates[identityOf(*status)] = secondsSince1970;
    }
    return status.has_value();
}

} // namespace desktop::foundation
