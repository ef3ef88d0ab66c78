// Classes of characters depend on the phone's language, so the library tells them apart itself.
#pragma once
