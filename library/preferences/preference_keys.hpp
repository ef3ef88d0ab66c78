// Every key of the preference file, in one place.
#pragma once

#include "library/preferences/preference_key.hpp"

namespace wentra::preferences {

/// The keys by the meaning they have here; each comment tells what the key does when on or set.
/// Holds keys (and arrays of keys) only.
struct PreferenceKeys {
    // Label rewriting
    Switch recolour{"kqwzgs"};               ///< applies the per-text colour rules
    Switch resize{"kqwzdx"};                 ///< applies the per-text font size rules
    Switch changeHeight{"kqwzgd"};           ///< applies the per-text height rules
    Switch changeWidth{"kqwzkd"};            ///< applies the per-text width rules
    Switch moveHorizontally{"kqhxyd"};       ///< applies the per-text horizontal position rules
    Switch moveVertically{"kqzxyd"};         ///< applies the per-text vertical position rules
    Switch changeAlpha{"kqxstm"};            ///< applies the per-text alpha rules
    Switch changeFont{"kqxgzt"};             ///< applies the per-text font name rules
    Switch globalFontSize{"kqdxzq"};         ///< applies the global font size
    Switch globalFont{"kqztzq"};             ///< applies the global font
    Number globalFontSizeIncrease{"kqxydx"}; ///< points added to the global font size

    // Rule editor
    Switch spacedRules{"kqghxs"};        ///< lists rules with a blank line after each
    Switch moveFiveLines{"gbzq"};        ///< up and down move five lines
    Switch correctTerms{"wbthxz"};       ///< corrects terms on saving
    Number editorTop{"编辑窗口起点"};    ///< top of the copied-text view, 0 means 5
    Number editorHeight{"编辑窗口高度"}; ///< height of the copied-text view, 0 means 145

    // Gestures
    Switch copyOnLongPress{"开启文字复制"};          ///< a long press on a label copies its text
    Switch suppressCopyInMessengers{"弹出异常屏蔽"}; ///< no copying in the listed messaging apps
    Text suppressedViewClasses{"异常视图过滤"};      ///< view class names between "," or "，"
    Switch scratchPad{"kqxfztb"};                    ///< scratch pad in the Settings app
    Switch longPressOnNavigation{"开启导航长按"};    ///< navigation bars open the editor too

    // Request blocking
    Switch blockRequests{"开启广告屏蔽"}; ///< blocks requests to the hosts below
    std::array<Text, 9> blockedHosts{
        Text{"Host过滤屏蔽"},  Text{"Host过滤屏蔽1"}, Text{"Host过滤屏蔽2"},
        Text{"Host过滤屏蔽3"}, Text{"Host过滤屏蔽4"}, Text{"Host过滤屏蔽5"},
        Text{"Host过滤屏蔽6"}, Text{"Host过滤屏蔽7"}, Text{"Host过滤屏蔽8"}};

    // Floating button and panel
    Switch showButton{"kqwzfc"};             ///< shows the floating button
    Switch timedButton{"kqjfzt"};            ///< shows the floating button for a time
    Number buttonSide{"悬浮球长宽比"};       ///< side of the floating button, 0 means 34
    Switch keepPanelOpen{"dbjbgc"};          ///< tapping the dim background keeps the panel open
    Switch draggablePanel{"kqxfyd"};         ///< the panel may be dragged
    Switch openOnCopy{"开启复制弹出"};       ///< a change of the pasteboard opens the panel
    Number panelTop{"悬浮窗口起点"};         ///< top of the panel, 0 means 60
    Number panelHeight{"悬浮窗口高度"};      ///< height of the panel, 0 means 610
    Text panelColour{"分词窗口底色"};        ///< background colour of the panel
    Switch touchCoordinates{"显示触摸坐标"}; ///< shows the coordinates of touches
    Number touchViewTop{"触摸窗口起点"};     ///< top of the touch view
    Number touchViewHeight{"触摸窗口高度"};  ///< height of the touch view

    // Toolbox and grid
    Number toolboxTransparency{"功能透明调节"};    ///< transparency of the toolbox
    Number gridFooterTransparency{"表格底部透明"}; ///< transparency of the grid's footer
    Number gridTop{"表格窗口起点"};                ///< top of the grid
    Number gridHeight{"表格窗口高度"};             ///< height of the grid
    Number gridTextSize{"表格文字大小"};           ///< font size of the grid
    Number gridRowHeight{"表格高度设定"};          ///< height of the grid's rows
    Number totalCountPosition{"总计数量位置"};     ///< position of the total count
    Number selectedCountPosition{"选中数量位置"};  ///< position of the selected count
    Number upperRowPosition{"上排功能位置"};       ///< position of the first row of functions
    Number lowerRowPosition{"下排功能位置"};       ///< position of the second row of functions
    Number thirdRowPosition{"三排功能位置"};       ///< position of the third row of functions
    Switch countUses{"开启数量统计"};              ///< statistics counter

    // Tools
    Switch browseFolders{"开文件夹浏览"};       ///< folder browsing
    Switch viewLocalFiles{"查看本地文件"};      ///< viewing of local files
    Switch searchInApp{"btzllq"};               ///< search results open in the in-app browser
    Switch parseVideoLinks{"抖音链接解析"};     ///< video-link parsing
    Switch parseLinks{"解析"};                  ///< the downloader parses links
    Switch filterParsedLinks{"解析过滤"};       ///< filters the links the downloader parsed
    Switch filterCrashLogs{"崩溃日志过滤"};     ///< crash-log filtering
    Text recordingNotice{"屏幕录制提示"};       ///< text shown while the screen is recorded
    Number recordingNoticeSize{"录制字体大小"}; ///< font size of that text

    // Translation
    Switch translateOnWeb{"网页Google"};        ///< translates through the web page
    Switch bilingualStyle{"中英对比样式"};      ///< shows original and translation together
    Switch restoreDefault{"Restoredefault"};    ///< translation option: restore the default
    Switch copyOriginal{"copyOriginal"};        ///< translation option: copy the original
    Switch copyTranslated{"copyTranslated"};    ///< translation option: copy the translation
    Switch modifyTranslated{"modify"};          ///< translation option: modify
    Switch readOriginal{"readOriginal"};        ///< translation option: read the original aloud
    Switch readTranslated{"readTranslated"};    ///< translation option: read the translation aloud
    Switch useOriginalText{"useOriginalText"};  ///< translation option: use the original text
    Switch translateInDiscord{"Discord翻译"};   ///< tap translation in that app
    Switch translateInTikTok{"TikTok翻译"};     ///< tap translation in that app
    Switch translateInSettings{"系统设置翻译"}; ///< tap translation in Settings
    Text translationIdentifier{"百度id"};       ///< identifier at the translation service
    Text translationSecret{"百度key"};          ///< key at the translation service

    // Edit menu
    Switch hideSystemMenu{"关闭菜单"};  ///< hides the system's edit-menu items
    Switch menuCopy{"复制文本"};        ///< item: copy
    Switch menuPaste{"粘贴文本"};       ///< item: paste
    Switch menuCut{"剪切文本"};         ///< item: cut
    Switch menuSelectAll{"全选代码"};   ///< item: select all
    Switch menuDelete{"删除选中"};      ///< item: delete the selection
    Switch menuShare{"分享文本"};       ///< item: share
    Switch menuTranslate{"翻译文本"};   ///< item: translate
    Switch menuSpeak{"朗读文本"};       ///< item: read aloud
    Switch menuFind{"查找文本"};        ///< item: find
    Switch menuComment{"注释代码"};     ///< item: comment out
    Switch menuPinyin{"字转拼音"};      ///< item: characters to pinyin
    Switch menuJumpToStart{"跳转开头"}; ///< item: jump to the start
    Switch menuJumpToEnd{"跳转结尾"};   ///< item: jump to the end
    Switch menuStoreAll{"全部储存"};    ///< item: store everything
};

inline constexpr PreferenceKeys keys;

} // namespace wentra::preferences
