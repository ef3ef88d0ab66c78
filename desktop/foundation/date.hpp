// Today's date.
#pragma once

namespace desktop::foundation {

/// Lets `+[NSDate date]` follow the one clock. Once.
void installDates();

} // namespace desktop::foundation
