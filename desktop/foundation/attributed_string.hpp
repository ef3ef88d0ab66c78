// Attributed strings of any UTF-16 units, quick with many stretches.
#pragma once

namespace desktop::foundation {

/// Makes attributed strings, copies included, in a way of our own, under the phone's names for such
/// classes. GNUstep's lose halves of surrogate pairs, and keep an object for each stretch of
/// attributes.
void installAttributedStrings();

} // namespace desktop::foundation
