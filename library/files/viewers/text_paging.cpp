// Cuts, appends and joins.
#include "library/files/viewers/text_paging.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "library/common/string_array.hpp"
#include "library/files/viewers/text_pages.hpp"

#include <utility>

namespace wentra::files {

using namespace ns::literals;

ns::String TextPaging::begin() {
    currentLoadedPage_ = 0;
    pages_ = pagesWithContent(self().fileContent(), pageSize);
    loadedPages_ = ns::MutableArray::make();
    if (const ns::String first = pages_.first(); first) {
        loadedPages_.add(first);
    }
    loadPage(currentLoadedPage_);
    return pages_.first();
}

TextPaging::Strings TextPaging::pagesWithContent(ns::String content, unsigned long size) const {
    const std::u16string text = content.utf16();
    return stringArray(pagesOf(text, size)).assume<Strings>();
}

/// A page whose text is there already is not loaded, wherever that stands.
void TextPaging::loadPage(long index) {
    if (index < 0 || static_cast<unsigned long>(index) >= pages_.count()) {
        return;
    }
    const ns::String page = pages_.at(static_cast<unsigned long>(index));
    {
        const std::scoped_lock lock(mutex_);
        if (loadedPages_.contains(page)) {
            return;
        }
        wanted_.emplace_back(page);
    }
    dispatch::async(dispatch::globalQueue(), [this, keptAlive = objc::Strong(self())]() mutable {
        appendWanted();
        // Whoever lets go of it last must do so on the main thread.
        dispatch::async(dispatch::mainQueue(), [kept = std::move(keptAlive)] {});
    });
}

void TextPaging::appendWanted() {
    const std::scoped_lock lock(mutex_);
    const objc::Strong<ns::String> page = std::move(wanted_.front());
    wanted_.erase(wanted_.begin());
    if (loadedPages_.contains(page)) {
        return;
    }
    loadedPages_.add(page);
    // Handed over under the lock: the longest text comes last.
    dispatch::async(
        dispatch::mainQueue(),
        [view = objc::Strong(self().textView()),
         text = objc::Strong(loadedPages_.componentsJoined(u""_ns))] { view.setText(text); });
}

/// The count goes on beyond the last page.
void TextPaging::cameToRest(ui::ScrollView view) {
    if (view.contentOffset().y + view.frame().size.height >= view.contentSize().height) {
        self().send<"loadPage:">(++currentLoadedPage_);
    }
}

} // namespace wentra::files
