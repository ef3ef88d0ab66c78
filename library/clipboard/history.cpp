// Recording follows the pasteboard; filtering and sorting follow the buttons.
#include "library/clipboard/history.hpp"

#include "bindings/foundation/date_formatter.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/clipboard/history_file.hpp"
#include "library/clipboard/record_order.hpp"

namespace wentra::clipboard {
namespace {

using namespace ns::literals;

/// What any list recorded last: not recorded twice in a row.
objc::Copied<ns::String>& latest() {
    static auto* text = new objc::Copied<ns::String>; // used until the process ends
    return *text;
}

} // namespace

void History::begin(ui::TableView table) {
    table_ = table;
    all_ = storedHistory();
    latest() = nullptr;
    pasteboardChanged(nullptr);
    filter();
    ns::NotificationCenter::defaultCenter().addObserver(
        self(), objc::selector<"pasteboardChanged:">(), u"UIPasteboardChangedNotification"_ns,
        nullptr);
}

/// What is shown stays as it is: a new text comes up with the next change of a filter.
void History::pasteboardChanged(ns::Notification) {
    const ns::String content = ui::Pasteboard::generalPasteboard().string();
    if (!content || content.isEqualToString(latest())) {
        return;
    }
    latest() = objc::Copied<ns::String>(content);
    record(latest());
    storeHistory(all_);
    table_.reloadData();
}

/// A text that is there already moves to the end.
void History::record(ns::String content) {
    constexpr unsigned long most = 50;
    for (unsigned long index = all_.count(); index-- > 0;) {
        if (Record::content(all_.at(index).as<ns::Dictionary>()).isEqualToString(content)) {
            all_.removeAt(index);
        }
    }
    all_.add(Record::with(content, now()));
    if (all_.count() > most) {
        all_.removeAt(0);
    }
}

void History::load() {
    shown_ = storedHistory();
    table_.reloadData();
}

/// "YYYY" is the year of the week: around New Year it may be the neighbouring one.
ns::String History::now() const {
    const auto formatter = ns::DateFormatter::make();
    formatter.setDateFormat(u"YYYY/MM/dd HH:mm:ss"_ns);
    return formatter.string(ns::Date::date());
}

void History::sort(ui::BarButtonItem) {
    ascending_ = !ascending_;
    std::vector<std::u16string> times;
    for (const objc::Object record : shown_) {
        times.push_back(Record::time(record.as<ns::Dictionary>()).utf16());
    }
    const auto sorted = ns::MutableArray::make();
    for (const std::size_t place : orderOf(times, ascending_)) {
        sorted.add(shown_.at(place));
    }
    shown_ = sorted;
    table_.reloadData();
}

void History::filter() {
    const auto kept = ns::MutableArray::make();
    for (const objc::Object record : all_) {
        if (passes(Record::content(record.as<ns::Dictionary>()).utf16(),
                   {links_, numbers_, letters_})) {
            kept.add(record);
        }
    }
    shown_ = kept;
}

ns::Dictionary History::at(long row) const {
    const bool exists = row >= 0 && static_cast<unsigned long>(row) < count();
    return exists ? shown_.at(static_cast<unsigned long>(row)).as<ns::Dictionary>() : nullptr;
}

bool History::remove(long row) {
    if (!at(row)) {
        return false;
    }
    shown_.removeAt(static_cast<unsigned long>(row));
    storeHistory(shown_);
    return true;
}

} // namespace wentra::clipboard
