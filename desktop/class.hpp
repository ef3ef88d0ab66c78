// The base of the desktop's Objective-C classes.
#pragma once

#include "bindings/objc/peer.hpp"

namespace desktop {

/// A class that plays the platform: what its methods throw reaches the caller, as on the phone.
template <class Self, class Kind>
using PlatformClass = objc::Peer<Self, Kind, objc::Boundary::propagates, objc::Methods::atOnce>;

} // namespace desktop
