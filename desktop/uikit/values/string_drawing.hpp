// NSString's measuring, as UIKit adds it.
#pragma once

namespace desktop {

/// Adds `boundingRectWithSize:options:attributes:context:` to NSString.
void installStringDrawing();

} // namespace desktop
