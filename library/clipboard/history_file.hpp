// The file of copied texts, one for each application.
#pragma once

#include "bindings/foundation/dictionary.hpp"

namespace wentra::clipboard {

/// A text that was copied, and when: a dictionary, as it stands in the file.
struct Record {
    static ns::Dictionary with(ns::String content, ns::String time);
    /// What was copied; nil when the dictionary is no record.
    static ns::String content(ns::Dictionary record);
    /// Nil when it is not known.
    static ns::String time(ns::Dictionary record);
};

/// The records of the file "AddCopy.plist" in the application's documents, oldest first. Whatever
/// else is in the file is left out; none are in a file that is missing, unreadable or no list.
[[nodiscard]] ns::MutableArray storedHistory();

/// Replaces the file by these records, in one step: whoever reads it, and whenever the process is
/// killed, it is the former one or this one. What fails is not told.
void storeHistory(ns::Array records);

} // namespace wentra::clipboard
