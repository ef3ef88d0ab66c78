// URLs of what a folder holds.
#pragma once

namespace desktop::foundation {

/// `contentsOfDirectoryAtURL:includingPropertiesForKeys:options:error:` knows the option to skip
/// hidden files and leaves out names that are no UTF-8, as no phone has them. Values are not read
/// ahead. Once, before any library is loaded. Main thread.
void installFolderListing();

} // namespace desktop::foundation
