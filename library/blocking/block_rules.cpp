// Our own words, and keeping the rules that were made last.
#include "library/blocking/block_rules.hpp"

#include "library/blocking/user_words.hpp"
#include "library/common/latest.hpp"

#include <array>
#include <span>
#include <utility>

namespace wentra::blocking {
namespace {

using preferences::Preferences;
using namespace std::string_view_literals;
using Rule = WordList::Rule;

constexpr std::array newUrlWords{
    u"mp/getappmsgad"sv,   u"mp/masonryfeed"sv, u"mp/relatedarticle"sv, u"wxsnsdythumb"sv,
    u"wxsnsdythumb.wxs"sv, u"bjmantis"sv,       u"changhewh"sv,         u"snscosdownload"sv,
    u"forceffort"sv,       u"hsld240"sv,        u"ad_data"sv,
};
constexpr std::array initialisedUrlWords{
    u"business-ad"sv, u"wxsnsdythumb"sv, u"bjmantis"sv, u"forceffort"sv,
    u"haoka"sv,       u"zxxjyz"sv,       u"pgdt"sv,
};
constexpr std::array taskWords{
    u"business-ad"sv, u"189xxl"sv,   u"zhangjiakou"sv,  u"youkazhushou"sv,
    u"forceffort"sv,  u"bjmantis"sv, u"wxsnsdythumb"sv,
};
constexpr std::array protocolWords{u"wxsnsdythumb"sv, u"bjmantis"sv};
constexpr std::array hosts{u"wxsnsdythumb.wxs.qq.com"sv};

struct Own {
    std::span<const std::u16string_view> words;
    Rule rule;
};

constexpr std::array<Own, entryPointCount> own{{
    {newUrlWords, Rule::part},
    {protocolWords, Rule::part},
    {initialisedUrlWords, Rule::part},
    {hosts, Rule::whole},
    {hosts, Rule::whole},
    {hosts, Rule::whole},
    {hosts, Rule::whole},
    {taskWords, Rule::part},
    {taskWords, Rule::part},
}};

WordList listOf(EntryPoint point, std::u16string_view users) {
    const Own& ours = own.at(static_cast<std::size_t>(point));
    std::vector<std::u16string_view> words(ours.words.begin(), ours.words.end());
    std::vector<std::u16string> ended;
    if (point == EntryPoint::newUrl) {
        ended = wordsEndedByCommas(users);
        words.insert(words.end(), ended.begin(), ended.end());
    } else {
        std::ranges::copy(wordsBetweenCommas(users), std::back_inserter(words));
    }
    return {std::move(words), ours.rule};
}

} // namespace

BlockRules::BlockRules(const Preferences& preferences) : preferences_(preferences) {
    lists_.reserve(entryPointCount);
    for (std::size_t point = 0; point < entryPointCount; ++point) {
        const std::u16string users = preferences.text(preferences::keys.blockedHosts.at(point));
        lists_.push_back(listOf(EntryPoint{point}, users));
    }
}

std::shared_ptr<const BlockRules> blockRules(const Preferences& preferences) {
    std::shared_ptr<const BlockRules> last = Latest<BlockRules>::get();
    if (last && last->fit(preferences)) {
        return last;
    }
    auto rules = std::make_shared<const BlockRules>(preferences);
    Latest<BlockRules>::set(rules);
    return rules;
}

} // namespace wentra::blocking
