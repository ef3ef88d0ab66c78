// What UIKit adds to NSIndexPath.
#pragma once

namespace desktop {

/// Gives index paths of two indexes their names: section and item, or row.
void installIndexPaths();

} // namespace desktop
