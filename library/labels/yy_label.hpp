// Our own YYLabel, which stands in where the application brings none.
#pragma once

namespace wentra::labels {

/// Declares our own `YYLabel`, a view with a font and a text colour, so that the name resolves in
/// every process. An application's class of that name stays as it is.
[[gnu::cold]] void registerYYLabel();

} // namespace wentra::labels
