// Dictionaries read from files in either form of property list.
#pragma once

namespace desktop::foundation {

/// Lets dictionaryWithContentsOfFile: read whatever property lists are read; GNUstep's own way
/// knows text forms only, and bounds no nesting.
void installDictionaryFiles();

} // namespace desktop::foundation
