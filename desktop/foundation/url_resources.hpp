// What files' URLs tell of the files.
#pragma once

namespace desktop::foundation {

/// `resourceValuesForKeys:error:` knows the date of creation; nothing is remembered between two
/// calls. `hasDirectoryPath` tells by the way that the URL is written. Once, before any library is
/// loaded. Main thread.
void installUrlResources();

} // namespace desktop::foundation
