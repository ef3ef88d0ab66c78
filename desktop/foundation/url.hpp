// URLs as phones make them, where GNUstep does otherwise.
#pragma once

namespace desktop::foundation {

/// A query may follow the host without a slash between them: "app://search?q=1". An empty text by
/// itself makes no URL. `URLWithString:` and `initWithString:` do not call each other. Once, before
/// any library is loaded. Main thread.
void installUrls();

} // namespace desktop::foundation
