// The regular expressions that the colours of reports and property lists stand for: later ones
// count.
#pragma once

#include "library/files/viewers/syntax_colours.hpp"

#include <array>
#include <string_view>

namespace wentra::files {

struct SyntaxExpression {
    std::u16string_view pattern;
    Syntax syntax;
};

inline constexpr std::array<SyntaxExpression, 41> syntaxExpressions{{
    {u"\\bsymbol\\b", Syntax::reportWord},
    {u"\\bimageIndex\\b", Syntax::reportWord},
    {u"\\bimageOffset\\b", Syntax::reportWord},
    {u"\\bsymbolLocation\\b", Syntax::reportWord},
    {u"\\btimestamp\\b", Syntax::reportWord},
    {u"\\bstartTimestamp\\b", Syntax::reportWord},
    {u"\\bPower Source\\b", Syntax::reportWord},
    {u"\\bPrimary state\\b", Syntax::reportWord},
    {u"\\bAdvisory levels\\b", Syntax::reportWord},
    {u"\\bWakeups\\b", Syntax::reportWord},
    {u"\\bvmSummary\\b", Syntax::reportWord},
    {u"\\bparentProc\\b", Syntax::reportWord},
    {u"\\bexception\\b", Syntax::reportWord},
    {u"\\bcoalitionName\\b", Syntax::reportWord},
    {u"\\bprocName\\b", Syntax::reportWord},
    {u"\\bvalue\\b", Syntax::reportWord},
    {u"\\bktriageinfo\\b", Syntax::reportWord},
    {u"\\bname\\b", Syntax::reportWord},
    {u"\\bpanicString\\b", Syntax::reportWord},
    {u"\\bcontinuation\\b", Syntax::reportWord},
    {u"\\bUser Activity\\b", Syntax::reportWord},
    {u"\\bsystemTime\\b", Syntax::reportWord},
    {u"\\bnamespace\\b", Syntax::reportWord},
    {u"\\bIdentifier\\b", Syntax::reportWord},
    {u"\\b1.0\\b", Syntax::reportWord},
    {u"\\bPath\\b", Syntax::reportWord},
    {u"\\btrue\\b", Syntax::reportWord},
    {u"\\bfalse\\b", Syntax::reportWord},
    {u"\\bsubtype\\b", Syntax::reportWord},
    {u"\\bpath\\b", Syntax::reportWord},
    {u"\\(|\\)", Syntax::parenthesis},
    {u"\\[|\\]", Syntax::squareBracket},
    {u"<|>", Syntax::angleBracket},
    {u"\\+|-|×|÷|:|;", Syntax::sign},
    {u"\\barray\\b", Syntax::listWord},
    {u"\\bplist\\b", Syntax::listWord},
    {u"\\bdict\\b", Syntax::listWord},
    {u"\\bstring\\b", Syntax::listWord},
    {u"\\bkey\\b", Syntax::listWord},
    {u"\\binteger\\b", Syntax::listWord},
    {u"\\btext\\b", Syntax::listWord},
}};

} // namespace wentra::files
