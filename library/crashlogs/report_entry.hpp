// The list's entries: dictionaries, which whoever opens the list hands over.
#pragma once

#include "bindings/foundation/date.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/url.hpp"

namespace wentra::crashlogs {

/// The file, and what is known of it.
struct ReportEntry {
    ns::Url url;
    ns::Date created = nullptr;
    objc::Object protection = nullptr;

    /// Of an entry of the list; the file is nil where it names none.
    static ReportEntry of(objc::Object entry);
    /// What is nil is left out.
    [[nodiscard]] ns::Dictionary dictionary() const;
    [[nodiscard]] ns::String name() const { return url.lastPathComponent(); }
};

} // namespace wentra::crashlogs
