// The commands that the edit menu gets: their switches, titles and actions.
#pragma once

#include "bindings/objc/selector.hpp"
#include "library/preferences/preference_keys.hpp"

#include <array>
#include <string_view>

namespace wentra::editing {

struct MenuCommand {
    const preferences::Switch& preference; ///< shows the command
    std::u16string_view title;
    SEL (*action)();
};

inline constexpr std::array menuCommands{
    MenuCommand{preferences::keys.menuSelectAll, u"全选", &objc::selector<"zkselectAllText:">},
    MenuCommand{preferences::keys.menuComment, u"注释", &objc::selector<"addComment:">},
    MenuCommand{preferences::keys.menuStoreAll, u"储存", &objc::selector<"selectAllAndCopy:">},
    MenuCommand{preferences::keys.menuDelete, u"删选", &objc::selector<"deleteSelectedText:">},
    MenuCommand{preferences::keys.menuFind, u"查找", &objc::selector<"showSearchAlert:">},
    MenuCommand{preferences::keys.menuCopy, u"复制", &objc::selector<"copyText:">},
    MenuCommand{preferences::keys.menuPaste, u"粘贴", &objc::selector<"pasteText:">},
    MenuCommand{preferences::keys.menuCut, u"剪切", &objc::selector<"cutText:">},
    MenuCommand{preferences::keys.menuShare, u"分享", &objc::selector<"shareText:">},
    MenuCommand{preferences::keys.menuJumpToStart, u"开头", &objc::selector<"scrollToBeginning:">},
    MenuCommand{preferences::keys.menuJumpToEnd, u"结尾", &objc::selector<"scrollToEnd:">},
    MenuCommand{preferences::keys.menuTranslate, u"翻译", &objc::selector<"Translatetext:">},
    MenuCommand{preferences::keys.menuSpeak, u"朗读", &objc::selector<"Readingtext:">},
    MenuCommand{preferences::keys.menuPinyin, u"拼音", &objc::selector<"pinyin:">},
};

/// Whether one of the commands sends the action.
[[nodiscard]] bool isMenuCommand(SEL action);

} // namespace wentra::editing
