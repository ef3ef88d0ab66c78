// Which addresses are blocked where: our own words and the user's, for each entry point.
#pragma once

#include "library/blocking/word_list.hpp"
#include "library/preferences/preferences.hpp"

#include <memory>
#include <string_view>
#include <vector>

namespace wentra::blocking {

/// The platform's entry points that have words of their own. The number is that of the user's list
/// among the preferences. Each is different on purpose.
enum class EntryPoint : std::size_t {
    newUrl = 0,                 ///< NSURL URLWithString:
    protocol = 1,               ///< NSURLProtocol canInitWithRequest:
    initialisedUrl = 2,         ///< NSURL initWithString:
    dataTask = 3,               ///< NSURLSession dataTaskWithRequest:
    urlOfRequest = 4,           ///< NSURLRequest setURL:
    webView = 5,                ///< WKWebView loadRequest:
    connection = 6,             ///< NSURLConnection connectionWithRequest:delegate:
    dataTaskOfSessionClass = 7, ///< NSURLSession's class: dataTaskWithURL:
    handledDataTask = 8,        ///< NSURLSession dataTaskWithRequest:completionHandler:
};
inline constexpr std::size_t entryPointCount = 9;

/// The words of every entry point, made of one state of the preferences. Never changes.
class BlockRules {
public:
    explicit BlockRules(const preferences::Preferences& preferences);

    /// `text` is the address or, for `dataTask` to `connection`, the host.
    [[nodiscard]] bool blocks(EntryPoint point, std::u16string_view text) const {
        return lists_[static_cast<std::size_t>(point)].decides(text);
    }
    /// Whether they are made from the same bytes as these preferences.
    [[nodiscard]] bool fit(const preferences::Preferences& preferences) const {
        return preferences_.sharesWith(preferences);
    }

private:
    preferences::Preferences preferences_;
    std::vector<WordList> lists_;
};

/// The rules that those preferences make: the ones made last when the file's bytes are still the
/// same. Any thread.
[[nodiscard]] std::shared_ptr<const BlockRules>
blockRules(const preferences::Preferences& preferences);

} // namespace wentra::blocking
