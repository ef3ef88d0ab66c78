// Standard input, output and error.
#pragma once

namespace desktop {

/// Opens those that whoever started the process has closed: the next files that are opened would
/// take their numbers, and what is printed or read would go to them. Call it before anything is
/// opened.
void openStandardDescriptors();

} // namespace desktop
