// NSDataDetector for links.
#pragma once

namespace desktop::foundation {

/// Declares the class and that of its results.
void registerDataDetector();

} // namespace desktop::foundation
