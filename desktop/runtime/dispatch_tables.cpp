// Renewing them.
#include "desktop/runtime/dispatch_tables.hpp"

extern "C" void
__objc_update_dispatch_table_for_class(Class cls); // NOLINT(bugprone-reserved-identifier)

namespace desktop {

void renewDispatchTables(Class cls) { __objc_update_dispatch_table_for_class(cls); }

} // namespace desktop
