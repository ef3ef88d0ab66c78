// The tables of errors and flags.
#include "device/emulation/phone_numbers.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <span>

namespace emulation {
namespace {

struct Pair {
    int phone;
    int linux_;
};

constexpr std::array errors{
    Pair{35, EAGAIN},    Pair{11, EDEADLK},   Pair{63, ENAMETOOLONG}, Pair{77, ENOLCK},
    Pair{78, ENOSYS},    Pair{66, ENOTEMPTY}, Pair{62, ELOOP},        Pair{45, ENOTSUP},
    Pair{84, EOVERFLOW}, Pair{92, EILSEQ},    Pair{60, ETIMEDOUT},    Pair{69, EDQUOT},
    Pair{70, ESTALE},    Pair{89, ECANCELED}, Pair{68, EUSERS},
};

constexpr std::array openFlags{
    Pair{0x4, O_NONBLOCK},       Pair{0x8, O_APPEND},        Pair{0x100, O_NOFOLLOW},
    Pair{0x200, O_CREAT},        Pair{0x400, O_TRUNC},       Pair{0x800, O_EXCL},
    Pair{0x100000, O_DIRECTORY}, Pair{0x1000000, O_CLOEXEC},
};

constexpr std::array lookupFlags{
    Pair{0x20, AT_SYMLINK_NOFOLLOW},
    Pair{0x40, AT_SYMLINK_FOLLOW},
};

std::optional<int> translated(int flags, std::span<const Pair> table) {
    int result = 0;
    for (const auto& [phone, here] : table) {
        result |= (flags & phone) != 0 ? here : 0;
        flags &= ~phone;
    }
    return flags == 0 ? std::optional(result) : std::nullopt;
}

} // namespace

std::optional<int> phoneError(int linuxError) {
    constexpr int lastCommon = ERANGE; // up to here both follow the same old list
    const auto found = std::ranges::find(errors, linuxError, &Pair::linux_);
    if (found != errors.end()) {
        return found->phone;
    }
    return linuxError <= lastCommon ? std::optional(linuxError) : std::nullopt;
}

std::optional<int> linuxOpenFlags(int phoneFlags) {
    const auto rest = translated(phoneFlags & ~O_ACCMODE, openFlags);
    return rest ? std::optional(*rest | (phoneFlags & O_ACCMODE)) : std::nullopt;
}

std::optional<int> linuxLookupFlags(int phoneFlags) { return translated(phoneFlags, lookupFlags); }

} // namespace emulation
