// What Foundation's methods say of their arguments, where it is not they that find out.
#pragma once

namespace desktop::foundation {

/// Declares the classes of the arguments of methods that end the process, or stand still, when they
/// get something else. Once; main thread.
void declareArguments();

} // namespace desktop::foundation
