// NSString's transliterations.
#pragma once

namespace desktop::foundation {

/// Adds stringByApplyingTransform:reverse:, for ICU's transforms and the platform's names of them.
void installStringTransforms();

} // namespace desktop::foundation
