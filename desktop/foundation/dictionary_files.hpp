// Dictionaries read from files in either form of property list.
#pragma once

namespace desktop::foundation {

/// Lets dictionaryWithContentsOfFile: read binary property lists, as the phone's does; GNUstep's
/// reads the text forms only.
void installDictionaryFiles();

} // namespace desktop::foundation
