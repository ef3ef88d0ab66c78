// NSPropertyListSerialization: property lists as bytes.
#pragma once

namespace desktop::foundation {

/// Makes NSPropertyListSerialization write by our own writers: GNUstep's XML spoils characters
/// beyond the first plane, and the time its binary writer takes grows with the square of the list.
void installPropertyListSerialization();

} // namespace desktop::foundation
