// Attributes of files, copying and moving, by the system's own calls.
#include "desktop/foundation/file_manager.hpp"

#include "bindings/darwin/copyfile.hpp"
#include "bindings/darwin/file_status.hpp"
#include "bindings/darwin/renamex_np.hpp"
#include "bindings/foundation/file_manager.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/foundation/error_encoding.hpp"
#include "desktop/foundation/file_dates.hpp"
#include "desktop/foundation/file_error.hpp"

#include <array>
#include <cerrno>
#include <cmath>
#include <fcntl.h>
#include <sys/stat.h>

namespace desktop::foundation {
namespace {

using namespace ns::literals;

ns::String typeOf(mode_t mode) {
    switch (mode & S_IFMT) {
    case S_IFREG:
        return u"NSFileTypeRegular"_ns;
    case S_IFDIR:
        return u"NSFileTypeDirectory"_ns;
    case S_IFLNK:
        return u"NSFileTypeSymbolicLink"_ns;
    case S_IFSOCK:
        return u"NSFileTypeSocket"_ns;
    case S_IFCHR:
        return u"NSFileTypeCharacterSpecial"_ns;
    case S_IFBLK:
        return u"NSFileTypeBlockSpecial"_ns;
    default:
        return u"NSFileTypeUnknown"_ns;
    }
}

ns::Number number(unsigned long long value) { return ns::Number::from(value); }

ns::Dictionary attributesOf(const std::string& path, const struct stat& status) {
    const timespec changed = darwin::modificationTime(status);
    const double modified =
        static_cast<double>(changed.tv_sec) + static_cast<double>(changed.tv_nsec) / 1e9;
    const auto all = ns::MutableDictionary::make();
    constexpr mode_t permissionBits = 07777;
    all.set(typeOf(status.st_mode), u"NSFileType"_ns);
    all.set(number(static_cast<unsigned long long>(status.st_size)), ns::file_attributes::size());
    all.set(number(status.st_mode & permissionBits), ns::file_attributes::posixPermissions());
    all.set(number(status.st_nlink), u"NSFileReferenceCount"_ns);
    all.set(number(status.st_ino), u"NSFileSystemFileNumber"_ns);
    all.set(number(status.st_uid), u"NSFileOwnerAccountID"_ns);
    all.set(number(status.st_gid), u"NSFileGroupOwnerAccountID"_ns);
    all.set(ns::Date::withTimeIntervalSince1970(modified), ns::file_attributes::modificationDate());
    all.set(ns::Date::withTimeIntervalSince1970(creationDate(path).value_or(0)),
            ns::file_attributes::creationDate());
    return all;
}

using AttributesReader = objc::Next<ns::Dictionary(ns::String, id*)>;
ns::Dictionary attributes(AttributesReader, ns::FileManager, ns::String path, id* error) {
    struct stat status {};
    const std::string file = path.utf8();
    if (lstat(file.c_str(), &status) != 0) {
        report(error, errno);
        return nullptr;
    }
    return attributesOf(file, status);
}

bool setModificationDate(const std::string& path, ns::Date date) {
    const double seconds = std::floor(date.timeIntervalSince1970());
    const auto nanoseconds = static_cast<long>((date.timeIntervalSince1970() - seconds) * 1e9);
    const std::array times{timespec{0, UTIME_OMIT},
                           timespec{static_cast<time_t>(seconds), nanoseconds}};
    return utimensat(AT_FDCWD, path.c_str(), times.data(), 0) == 0;
}

/// What has no entry stays as it is.
bool set(ns::FileManager, ns::Dictionary attributes, ns::String path, id* error) {
    const std::string file = path.utf8();
    const auto bits = attributes.get(ns::file_attributes::posixPermissions()).as<ns::Number>();
    const auto changed = attributes.get(ns::file_attributes::modificationDate()).as<ns::Date>();
    const auto made = attributes.get(ns::file_attributes::creationDate()).as<ns::Date>();
    struct stat status {};
    const bool done =
        stat(file.c_str(), &status) == 0 &&
        (!bits || chmod(file.c_str(), static_cast<mode_t>(bits.unsignedValue())) == 0) &&
        (!made || setCreationDate(file, made.timeIntervalSince1970())) &&
        (!changed || setModificationDate(file, changed));
    if (!done) {
        report(error, errno);
    }
    return done;
}

bool copy(objc::Next<bool(ns::String, ns::String, id*)>, ns::FileManager, ns::String from,
          ns::String to, id* error) {
    constexpr copyfile_flags_t flags = darwin::copyfileAll | darwin::copyfileRecursive |
                                       darwin::copyfileExclusive | darwin::copyfileNoFollow;
    const bool done = copyfile(from.utf8().c_str(), to.utf8().c_str(), nullptr, flags) == 0;
    if (!done) {
        report(error, errno);
    }
    return done;
}

using Mover = objc::Next<bool(ns::String, ns::String, id*)>;
bool move(Mover next, ns::FileManager, ns::String from, ns::String to, id* error) {
    const int result = renamex_np(from.utf8().c_str(), to.utf8().c_str(), darwin::renameExclusive);
    if (result == 0) {
        return true;
    }
    if (errno == EXDEV || errno == ENOTSUP) {
        return next(from, to, error);
    }
    report(error, errno);
    return false;
}

} // namespace

void installFileManager() {
    objc::install(objc::hook<"attributesOfItemAtPath:error:", &attributes>());
    objc::install(objc::hook<"copyItemAtPath:toPath:error:", &copy>());
    objc::install(objc::hook<"moveItemAtPath:toPath:error:", &move>());
    objc::install(objc::addition<"setAttributes:ofItemAtPath:error:", &set>());
}

} // namespace desktop::foundation
