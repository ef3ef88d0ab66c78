// NSPredicate: how its formats are read, and how it compares texts.
#pragma once

namespace desktop::foundation {

/// Makes predicates compare texts as on the phone: GNUstep knows no "[d]", lets "." of a regular
/// expression match line breaks, and keeps the backslashes of a format's texts. A pattern that is
/// no regular expression matches nothing; the phone raises.
void installPredicates();

} // namespace desktop::foundation
