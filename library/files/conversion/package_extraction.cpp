// One tool after the other, in a folder that is gone afterwards.
#include "library/files/conversion/package_extraction.hpp"

#include "library/files/conversion/archive_tools.hpp"

namespace wentra::files {

void PackageExtraction::extract(ns::String package, ns::String folder) const {
    unpackPackage(package.utf8(), folder.utf8());
}

} // namespace wentra::files
