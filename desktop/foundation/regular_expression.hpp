// NSRegularExpression: finding all matches in a text.
#pragma once

namespace desktop::foundation {

/// Makes NSRegularExpression match by ICU over the text's units: GNUstep finds nothing in a text
/// that holds half a surrogate pair, and asks for each character by a message.
void installRegularExpressions();

} // namespace desktop::foundation
