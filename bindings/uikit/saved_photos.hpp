// The photo library, as far as pictures are put into it.
#pragma once

#include "bindings/uikit/image.hpp"

extern "C" {
/// Saves the picture in the photo library. Later, on the main thread, the target is sent `done`:
/// "image:didFinishSavingWithError:contextInfo:", with a nil error when it is there. The target is
/// kept until then and may be nil.
void UIImageWriteToSavedPhotosAlbum(id image, id target, SEL done, void* context);
}
