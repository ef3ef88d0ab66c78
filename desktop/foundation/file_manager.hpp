// The file manager where GNUstep does otherwise, or nothing.
#pragma once

namespace desktop::foundation {

/// Attributes with the dates of creation, setting attributes, and moving links that lead nowhere.
void installFileManager();

} // namespace desktop::foundation
