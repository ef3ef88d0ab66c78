// What a folder holds, as entries of the list.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/result.hpp"
#include "bindings/foundation/url.hpp"
#include "library/crashlogs/report_name.hpp"

namespace wentra::crashlogs {

/// The crash reports or, if the preferences want that, the user's documents.
[[nodiscard]] Shown shownByPreference();

/// The entries of the reports or documents, the newest first, without hidden files; folders only
/// when the preferences allow to walk into them. Empty when the folder cannot be read.
[[nodiscard]] ns::Array listedEntries();

/// All that the folder holds but hidden files, in no particular order: entries with nothing but the
/// file. The array is nil, and the error tells why, when the folder cannot be read.
[[nodiscard]] ns::Result<ns::Array> entriesIn(ns::Url folder);

} // namespace wentra::crashlogs
