// Foundation's older loading, NSURLConnection and what only wants the bytes, over our own network.
#pragma once

namespace desktop::foundation {

/// From now on they load as URL sessions do: on this machine only, services included, and each
/// request is told. Once.
void installLoadingProtocol();

} // namespace desktop::foundation
