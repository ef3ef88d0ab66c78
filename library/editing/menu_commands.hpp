// The commands that the edit menu gets: their switches, titles and actions.
#pragma once

#include "bindings/foundation/string.hpp"
#include "bindings/objc/selector.hpp"
#include "library/preferences/preference_keys.hpp"

#include <array>

namespace wentra::editing {

/// The title's string, made once: the menu is put together at every change of the first responder.
template <ns::detail::Utf16Literal Title>
ns::String title() {
    return ns::literals::operator""_ns<Title>();
}

struct MenuCommand {
    const preferences::Switch& preference; ///< shows the command
    ns::String (*title)();
    SEL (*action)();
};

inline constexpr std::array menuCommands{
    MenuCommand{preferences::keys.menuSelectAll, &title<u"全选">,
                &objc::selector<"zkselectAllText:">},
    MenuCommand{preferences::keys.menuComment, &title<u"注释">, &objc::selector<"addComment:">},
    MenuCommand{preferences::keys.menuStoreAll, &title<u"储存">,
                &objc::selector<"selectAllAndCopy:">},
    MenuCommand{preferences::keys.menuDelete, &title<u"删选">,
                &objc::selector<"deleteSelectedText:">},
    MenuCommand{preferences::keys.menuFind, &title<u"查找">, &objc::selector<"showSearchAlert:">},
    MenuCommand{preferences::keys.menuCopy, &title<u"复制">, &objc::selector<"copyText:">},
    MenuCommand{preferences::keys.menuPaste, &title<u"粘贴">, &objc::selector<"pasteText:">},
    MenuCommand{preferences::keys.menuCut, &title<u"剪切">, &objc::selector<"cutText:">},
    MenuCommand{preferences::keys.menuShare, &title<u"分享">, &objc::selector<"shareText:">},
    MenuCommand{preferences::keys.menuJumpToStart, &title<u"开头">,
                &objc::selector<"scrollToBeginning:">},
    MenuCommand{preferences::keys.menuJumpToEnd, &title<u"结尾">, &objc::selector<"scrollToEnd:">},
    MenuCommand{preferences::keys.menuTranslate, &title<u"翻译">,
                &objc::selector<"Translatetext:">},
    MenuCommand{preferences::keys.menuSpeak, &title<u"朗读">, &objc::selector<"Readingtext:">},
    MenuCommand{preferences::keys.menuPinyin, &title<u"拼音">, &objc::selector<"pinyin:">},
};

/// Whether one of the commands sends the action.
[[nodiscard]] bool isMenuCommand(SEL action);

} // namespace wentra::editing
