// The system's tools for archives.
#pragma once

#include <string>

namespace wentra::files {

/// Unpacks the payload of a Debian package ("data.tar.xz") into the folder, by ar and tar, and
/// waits for them. What a package brings beside its payload does not stay anywhere, and how the
/// tools fare is not told. The tools refuse names that lead out of the folder.
void unpackPackage(const std::string& package, const std::string& folder);

} // namespace wentra::files
