// The tool that writes what runs in this process to files.
#pragma once

#include "bindings/objc/part.hpp"
#include "library/utilities/umaca_table_view_controller.hpp"

namespace wentra::utilities {

/// Classes, images, and how long the phone has been running. A file that cannot be written stays
/// as it was.
class RuntimeDump : public objc::Part<UmacaTableViewController> {
public:
    using Part::Part;
    static RuntimeDump& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"writeRunningTimeToFile", &RuntimeDump::writeUptime>(),
            objc::method<"writeSymbolsToFile", &RuntimeDump::writeSymbols>(),
        };
    }

    void write() {
        writeUptime();
        writeSymbols();
    }

private:
    void writeUptime();
    void writeSymbols();
};

} // namespace wentra::utilities
