// Candidates are found at the marks that every link has: a dot or a colon.
#include "desktop/foundation/link_detection.hpp"

#include <libpsl.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace desktop::foundation {
namespace {

constexpr bool isLetter(char16_t unit) {
    const auto lower = static_cast<char16_t>(unit | 0x20U);
    return lower >= u'a' && lower <= u'z';
}
constexpr bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
constexpr bool isLetterOrDigit(char16_t unit) { return isLetter(unit) || isDigit(unit); }
constexpr bool isOneOf(char16_t unit, std::u16string_view units) {
    return units.find(unit) != units.npos;
}

constexpr bool isSchemeUnit(char16_t unit) {
    return isLetterOrDigit(unit) || isOneOf(unit, u"+.-");
}
constexpr bool isHostUnit(char16_t unit) { return isLetterOrDigit(unit) || isOneOf(unit, u".-"); }
constexpr bool isMailboxUnit(char16_t unit) {
    return isLetterOrDigit(unit) || isOneOf(unit, u".!#$%&'*+/=?^_`{|}~-");
}

/// What stands in no link: white space, quotation marks, and the punctuation of Chinese.
constexpr bool endsLink(char16_t unit) {
    return unit <= u' ' ||
           isOneOf(unit, u"\"<>\\^`{|}\u007F\u0085\u00A0\u1680\u2028\u2029\u202F\u205F") ||
           (unit >= 0x2000 && unit <= 0x200B) || (unit >= 0x2018 && unit <= 0x201F) ||
           unit == 0x2026 || (unit >= 0x3000 && unit <= 0x303F) ||
           (unit >= 0xFF01 && unit <= 0xFF0F) || (unit >= 0xFF1A && unit <= 0xFF20) ||
           (unit >= 0xFF3B && unit <= 0xFF40) || (unit >= 0xFF5B && unit <= 0xFF65);
}

/// Links end before these, unless more follows.
constexpr bool belongsToSentence(char16_t unit) { return isOneOf(unit, u".,;:!?'*_~-"); }

bool isTopLevelDomain(std::u16string_view label) {
    constexpr int kinds = PSL_TYPE_ICANN | PSL_TYPE_NO_STAR_RULE;
    std::string name(label.begin(), label.end());
    std::ranges::transform(name, name.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter | 0x20) : letter;
    });
    return psl_is_public_suffix2(psl_builtin(), name.c_str(), kinds) != 0;
}

/// ASCII labels between dots, of which the last is a top-level domain.
bool isHost(std::u16string_view host) {
    const std::size_t lastDot = host.rfind(u'.');
    if (lastDot == host.npos || host.starts_with(u'.') || host.starts_with(u'-') ||
        host.find(u"..") != host.npos) {
        return false;
    }
    const std::u16string_view last = host.substr(lastDot + 1);
    return !last.empty() && std::ranges::all_of(last, isLetter) && isTopLevelDomain(last);
}

/// How many brackets of a text close more than it opens.
struct UnopenedBrackets {
    long round = 0;
    long square = 0;

    /// Whether a unit at the end is an opening bracket, or closes one too many, which goes then.
    bool take(char16_t unit) {
        long& count = unit == u'(' || unit == u')' ? round : square;
        if (unit == u'(' || unit == u'[') {
            ++count;
            return true;
        }
        return (unit == u')' || unit == u']') && count-- > 0;
    }
};

UnopenedBrackets unopenedBrackets(std::u16string_view text) {
    const auto excess = [text](char16_t close, char16_t open) {
        return static_cast<long>(std::ranges::count(text, close) - std::ranges::count(text, open));
    };
    return {excess(u')', u'('), excess(u']', u'[')};
}

class Detector {
public:
    explicit Detector(std::u16string_view text) : text_(text) {}

    std::vector<DetectedLink> detect() {
        for (at_ = text_.find_first_of(u".:@"); at_ < text_.size();
             at_ = text_.find_first_of(u".:@", at_)) {
            if (const auto link = linkAround(); link) {
                links_.push_back(*link);
                free_ = at_ = link->range.location + link->range.length;
            } else {
                // What was no host as a whole is none from its next dot on.
                at_ = text_[at_] == u'.' ? endOf(at_, isHostUnit) : at_ + 1;
            }
        }
        return std::move(links_);
    }

private:
    [[nodiscard]] std::optional<DetectedLink> linkAround() const {
        switch (text_[at_]) {
        case u':':
            return withScheme();
        case u'@':
            return mailAddress();
        default:
            return bareHost();
        }
    }

    /// Where units of that sort begin that end here; never within an earlier link.
    template <class Sort>
    [[nodiscard]] std::size_t startOf(Sort isOfSort) const {
        std::size_t start = at_;
        while (start > free_ && isOfSort(text_[start - 1])) {
            --start;
        }
        return start;
    }
    template <class Sort>
    [[nodiscard]] std::size_t endOf(std::size_t start, Sort isOfSort) const {
        const auto rest = text_.substr(start);
        return start +
               static_cast<std::size_t>(std::ranges::find_if_not(rest, isOfSort) - rest.begin());
    }

    [[nodiscard]] DetectedLink link(std::size_t start, std::size_t end,
                                    std::u16string_view before) const {
        return {{start, end - start},
                std::u16string(before).append(text_.substr(start, end - start))};
    }

    /// Where a link ends that begins there and goes on to `from` at least: a bracket is its last
    /// unit only when it closes one of its own.
    [[nodiscard]] std::size_t linkEnd(std::size_t start, std::size_t from) const {
        const auto rest = text_.substr(from);
        std::size_t end =
            from + static_cast<std::size_t>(std::ranges::find_if(rest, endsLink) - rest.begin());
        auto unopened = unopenedBrackets(text_.substr(start, end - start));
        while (end > from && (belongsToSentence(text_[end - 1]) || unopened.take(text_[end - 1]))) {
            --end;
        }
        return end;
    }

    [[nodiscard]] std::optional<DetectedLink> withScheme() const {
        std::size_t start = startOf(isSchemeUnit);
        while (start < at_ && !isLetter(text_[start])) {
            ++start;
        }
        const std::size_t after = at_ + 3;
        if (start == at_ || !text_.substr(at_).starts_with(u"://")) {
            return std::nullopt;
        }
        const std::size_t end = linkEnd(start, after);
        return end == after ? std::nullopt : std::optional(link(start, end, u""));
    }

    [[nodiscard]] std::optional<DetectedLink> mailAddress() const {
        std::size_t start = startOf(isMailboxUnit);
        while (start < at_ && !isLetterOrDigit(text_[start])) {
            ++start;
        }
        std::size_t end = endOf(at_ + 1, isHostUnit);
        while (end > at_ + 1 && !isLetterOrDigit(text_[end - 1])) {
            --end;
        }
        const bool isAddress = start < at_ && isHost(text_.substr(at_ + 1, end - at_ - 1));
        return isAddress ? std::optional(link(start, end, u"mailto:")) : std::nullopt;
    }

    [[nodiscard]] std::optional<DetectedLink> bareHost() const {
        const std::size_t start = startOf(isHostUnit);
        std::size_t end = endOf(at_, isHostUnit);
        const bool isMail = end < text_.size() && text_[end] == u'@';
        while (end > at_ && !isLetterOrDigit(text_[end - 1])) {
            --end;
        }
        const auto host = text_.substr(start, end - start);
        const bool isLink = host.starts_with(u"www.") ? host.size() > 4 : isHost(host);
        if (!isLink || isMail || follows(start, u"@/_")) {
            return std::nullopt;
        }
        return link(start, more(start, end), u"http://");
    }

    [[nodiscard]] bool follows(std::size_t start, std::u16string_view units) const {
        return start > free_ && isOneOf(text_[start - 1], units);
    }

    /// The end of a host's port, path, query and fragment.
    [[nodiscard]] std::size_t more(std::size_t start, std::size_t end) const {
        if (end + 1 < text_.size() && text_[end] == u':' && isDigit(text_[end + 1])) {
            end = endOf(end + 1, isDigit);
        }
        const bool goesOn = end < text_.size() && isOneOf(text_[end], u"/?#");
        return goesOn ? linkEnd(start, end) : end;
    }

    std::u16string_view text_;
    std::size_t at_ = 0;
    std::size_t free_ = 0; ///< where the last link ended
    std::vector<DetectedLink> links_;
};

} // namespace

std::vector<DetectedLink> detectLinks(std::u16string_view text) { return Detector(text).detect(); }

} // namespace desktop::foundation
