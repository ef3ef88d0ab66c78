// NSFileManager.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct FileManager : objc::Kind<FileManager, "NSFileManager"> {
    using Kind::Kind;

    static FileManager defaultManager() { return sendClass<"defaultManager", FileManager>(); }
    /// Files and folders alike; links are followed.
    [[nodiscard]] bool fileExists(String path) const {
        return send<"fileExistsAtPath:", bool>(path);
    }
};

} // namespace ns
