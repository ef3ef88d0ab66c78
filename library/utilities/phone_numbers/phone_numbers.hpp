// The tool that collects the telephone numbers of the phone's accounts.
#pragma once

#include "bindings/objc/part.hpp"
#include "library/utilities/tool_screens.hpp"

namespace wentra::utilities {

/// Reads the accounts' property list of whichever format, writes the numbers in it to a file and
/// shares them. An account list that is no property list is told to the log, and nothing happens.
class PhoneNumbers : public objc::Part<UmacaTableViewController> {
public:
    PhoneNumbers(UmacaTableViewController whole, ToolScreens& screens)
        : Part(whole), screens_(screens) {}
    static PhoneNumbers& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{objc::method<"extractNumbers", &PhoneNumbers::extract>()};
    }

    void extract();

private:
    ToolScreens& screens_;
};

} // namespace wentra::utilities
