// The table of term corrections, applied in the order it is written.
#include "library/labels/term_correction.hpp"

#include "library/common/occurrences.hpp"

namespace wentra::labels {
namespace {

struct TermCorrection {
    std::u16string_view wrong;
    std::u16string_view right;
};

constexpr TermCorrection termCorrections[] = {
    {u"重新响铃", u"注销"},    {u"重新呼吸", u"注销"},     {u"重新应答", u"注销"},
    {u"LPM", u"省电模式"},     {u"徽章", u"角标"},         {u"捆绑包", u"Bundle"},
    {u"共有", u"共享"},        {u"股票", u"原生"},         {u"使可能", u"启用"},
    {u"艺术品", u"专辑"},      {u"库存", u"原生"},         {u"重新映射", u"注销设备"},
    {u"打开式", u"打开"},      {u"可达性", u"便捷访问"},   {u"重新响应", u"注销设备"},
    {u"捆绑id", u"Bundle ID"}, {u"呼吸", u"注销"},         {u"颜色alpha", u"颜色透明度"},
    {u"公开", u"打开"},        {u"码头", u"Dock"},         {u"😄", u"↲"},
    {u"停靠", u"Dock"},        {u"浮动", u"悬浮"},         {u"编号", u"数量"},
    {u"聚光灯", u"搜索"},      {u"解除", u"关闭"},         {u"开放", u"打开"},
    {u"厚度", u"粗细"},        {u"背景中", u"后台中"},     {u"边界", u"边框"},
    {u"单个抽头", u"单击"},    {u"背景模式", u"后台模式"}, {u"调整", u"插件"},
    {u"打开支架", u"左括号"},  {u"更暗", u"较暗"},         {u"闭合支架", u"右括号"},
    {u"压痕", u"缩进"},        {u"支架", u"括号"},         {u"锁定屏幕", u"锁屏"},
    {u"空白", u"空格"},        {u"的空白", u"有空格"},     {u"违约", u"默认"},
};

} // namespace

std::u16string correctTerms(std::u16string_view text) {
    std::u16string corrected(text);
    for (const TermCorrection& correction : termCorrections) {
        replaceAll(corrected, correction.wrong, correction.right);
    }
    return corrected;
}

} // namespace wentra::labels
