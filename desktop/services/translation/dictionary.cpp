// The phrases, and finding one.
#include "desktop/services/translation/dictionary.hpp"

#include <algorithm>
#include <array>
#include <cctype>

namespace desktop::services::translation {
namespace {

struct Phrase {
    std::string_view english;
    std::string_view chinese;
};

/// Where several phrases share a side, the first one is its translation.
constexpr std::array phrases{
    Phrase{"hello", "你好"},
    Phrase{"world", "世界"},
    Phrase{"hello world", "你好世界"},
    Phrase{"good morning", "早上好"},
    Phrase{"good evening", "晚上好"},
    Phrase{"good night", "晚安"},
    Phrase{"goodbye", "再见"},
    Phrase{"thank you", "谢谢"},
    Phrase{"thanks", "谢谢"},
    Phrase{"you are welcome", "不客气"},
    Phrase{"please", "请"},
    Phrase{"sorry", "对不起"},
    Phrase{"yes", "是"},
    Phrase{"no", "不"},
    Phrase{"how are you", "你好吗"},
    Phrase{"i love you", "我爱你"},
    Phrase{"today", "今天"},
    Phrase{"tomorrow", "明天"},
    Phrase{"yesterday", "昨天"},
    Phrase{"settings", "设置"},
    Phrase{"notes", "备忘录"},
    Phrase{"message", "消息"},
    Phrase{"search", "搜索"},
    Phrase{"cancel", "取消"},
    Phrase{"done", "完成"},
    Phrase{"delete", "删除"},
    Phrase{"edit", "编辑"},
    Phrase{"save", "保存"},
    Phrase{"copy", "复制"},
    Phrase{"paste", "粘贴"},
    Phrase{"share", "分享"},
    Phrase{"open", "打开"},
    Phrase{"close", "关闭"},
    Phrase{"phone", "手机"},
    Phrase{"computer", "电脑"},
    Phrase{"friend", "朋友"},
    Phrase{"water", "水"},
    Phrase{"milk", "牛奶"},
    Phrase{"buy milk", "买牛奶"},
    Phrase{"book", "书"},
    Phrase{"cat", "猫"},
    Phrase{"dog", "狗"},
    Phrase{"apple", "苹果"},
    Phrase{"one", "一"},
    Phrase{"two", "二"},
    Phrase{"three", "三"},
};

bool isSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

/// Without spaces around and the closing mark.
std::string_view core(std::string_view line) {
    while (!line.empty() && isSpace(line.front())) {
        line.remove_prefix(1);
    }
    while (!line.empty() && isSpace(line.back())) {
        line.remove_suffix(1);
    }
    for (const std::string_view mark : {".", "!", "?", "。", "！", "？"}) {
        if (line.ends_with(mark)) {
            line.remove_suffix(mark.size());
            break;
        }
    }
    return line;
}

bool sameLetters(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, [](unsigned char a, unsigned char b) {
        return std::tolower(a) == std::tolower(b);
    });
}

} // namespace

Language languageOf(std::string_view text) {
    // U+4E00 to U+9FFF are three bytes, beginning with E4 B8 80 to E9 BF BF.
    for (std::size_t i = 0; i + 2 < text.size(); ++i) {
        const auto first = static_cast<unsigned char>(text[i]);
        const auto second = static_cast<unsigned char>(text[i + 1]);
        if ((first == 0xE4 && second >= 0xB8) || (first >= 0xE5 && first <= 0xE9)) {
            return Language::chinese;
        }
    }
    return Language::english;
}

std::string translated(std::string_view line, Language to) {
    if (languageOf(line) == to) {
        return std::string(line);
    }
    const std::string_view wanted = core(line);
    const auto found = std::ranges::find_if(phrases, [wanted, to](const Phrase& phrase) {
        return sameLetters(wanted, to == Language::chinese ? phrase.english : phrase.chinese);
    });
    if (found == phrases.end()) {
        return "⟦" + std::string(line) + "⟧";
    }
    return std::string(to == Language::chinese ? found->chinese : found->english);
}

} // namespace desktop::services::translation
