// A copy beside its place, which then takes the place.
#include "library/toolbox/download/kept_file.hpp"

#include "bindings/foundation/file_manager.hpp"

#include <cerrno>
#include <cstdio>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

ns::Error systemError(int number) { return ns::Error::with(u"NSPOSIXErrorDomain"_ns, number); }

/// A hidden name that no other download has, short enough for any file system.
ns::String nameBeside(ns::String path, ns::Url file) {
    std::u16string name = path.utf16();
    name.resize(name.rfind(u'/') + 1);
    const std::u16string own = file.path().utf16();
    name += u'.';
    name += std::u16string_view(own).substr(own.rfind(u'/') + 1);
    return ns::String::from(name);
}

/// Foundation would remove the former file first.
ns::Error moveOver(ns::String from, ns::String to) {
    return std::rename(from.utf8().c_str(), to.utf8().c_str()) == 0 ? ns::Error()
                                                                    : systemError(errno);
}

} // namespace

ns::Error keepFile(ns::Url file, ns::String path) {
    if (!path) {
        return systemError(ENOENT);
    }
    const auto files = ns::FileManager::defaultManager();
    const ns::String copy = nameBeside(path, file);
    ns::Error failure = files.copyItem(file.path(), copy);
    if (!failure) {
        failure = moveOver(copy, path);
    }
    if (failure) {
        static_cast<void>(files.removeItem(copy)); // what there is of it
    }
    return failure;
}

} // namespace wentra::toolbox
