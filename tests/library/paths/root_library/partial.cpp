// A library that knows its prefixes and nothing else. Its files lie in a folder of the device's.
extern "C" {

const char* libroot_get_root_prefix();
const char* libroot_get_jbroot_prefix();

const char* libroot_get_root_prefix() { return "/its-root"; }

const char* libroot_get_jbroot_prefix() { return "/Library/its-jbroot"; }
}
