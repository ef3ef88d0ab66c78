// The applications, classes and texts that copying keeps away from.
#include "library/labels/copy_rules.hpp"

#include "library/common/text_parts.hpp"

#include <algorithm>
#include <array>

namespace wentra::labels {
namespace {

using namespace std::string_view_literals;

constexpr std::array messengers{"com.xingin.discover"sv, "com.tencent.xin"sv, "com.tencent.xin1"sv,
                                "com.tencent.xin2"sv};

constexpr std::array noCopying{
    u"QQMoreOptionContentView"sv,       u"QQGProEmojiTextView"sv,
    u"FLEXArgumentInputNumberView"sv,   u"QQGroupSettingViewMembersCell"sv,
    u"FLEXArgumentInputStringView"sv,   u"QQInputDefaultTextView"sv,
    u"QQInputbarBackgroundImageView"sv, u"UITextViewCanvasView"sv,
    u"MCTFTPopOverMenuCell"sv,          u"CKMessageEntryRichTextView"sv,
};

constexpr std::array noPressing{
    u"FLEXArgumentInputNumberView"sv,   u"FLEXArgumentInputStringView"sv, u"QQGProEmojiTextView"sv,
    u"QQGroupSettingViewMembersCell"sv, u"MCTFTPopOverMenuCell"sv,
};

bool contains(const auto& list, const auto& element) {
    return std::ranges::find(list, element) != std::ranges::end(list);
}

} // namespace

bool copiesIn(std::string_view bundle, CopySwitches switches) {
    return switches.copy && !(switches.suppress && contains(messengers, bundle));
}

bool excludesCopying(std::u16string_view ancestorClass, const std::vector<std::u16string>& users) {
    return contains(noCopying, ancestorClass) || contains(users, ancestorClass);
}

bool excludesPressing(std::u16string_view ancestorClass) {
    return contains(noPressing, ancestorClass);
}

bool isNeverCopied(std::u16string_view text) { return text == u"按住 说话" || text == u"提出问题"; }

std::vector<std::u16string> splitClassNames(std::u16string_view list) {
    const auto names = split(list, [](char16_t unit) { return unit == u',' || unit == u'，'; });
    return {names.begin(), names.end()};
}

} // namespace wentra::labels
