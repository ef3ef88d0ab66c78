// URLs that GNUstep does not take, and phones do.
#pragma once

namespace desktop::foundation {

/// A query may follow the host without a slash between them: "app://search?q=1". Once, before any
/// library is loaded. Main thread.
void installUrls();

} // namespace desktop::foundation
