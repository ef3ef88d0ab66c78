// Parses, writes and tells the log what went wrong.
#include "library/files/conversion/xml_copy.hpp"

#include "bindings/foundation/log.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "library/files/file_path.hpp"
#include "library/files/regular_file.hpp"

namespace wentra::files {
namespace {

void logFailure(ns::Error error) { ns::log(ns::description(error).utf8()); }

/// Nil when the file is no property list, when it is an XML one, and when XML cannot hold it.
ns::Data xmlOf(const std::string& path) {
    const ns::Data data = bytesOfFile(path);
    if (!data) {
        return nullptr;
    }
    ns::PropertyListFormat format{};
    const auto [list, unreadable] =
        ns::PropertyListSerialization::mutablePropertyList(data, format);
    if (unreadable) {
        logFailure(unreadable);
        return nullptr;
    }
    if (format == ns::PropertyListFormat::xml) {
        return nullptr;
    }
    const auto [xml, failure] =
        ns::PropertyListSerialization::data(list, ns::PropertyListFormat::xml);
    if (failure) {
        logFailure(failure);
    }
    return xml;
}

} // namespace

void copyAsXml(Panes& panes, ui::TableView table, ns::IndexPath row) {
    const auto source = panes.entry(table, row);
    if (!source) {
        return;
    }
    if (const ns::Data xml = xmlOf(*source); xml) {
        const std::string name = std::string(baseOf(*source)) + "-XML明文.plist";
        const ns::Error error = xml.writeToFile(textOf(joined(panes.folder(table), name)),
                                                ns::DataWritingOptions::atomic);
        if (error) {
            logFailure(error);
        }
    }
    panes.self().send<"reloadDataForTableView:">(table);
}

} // namespace wentra::files
