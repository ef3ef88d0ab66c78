// Where the files of a jailbreak live: prefixes and path conversions, given by its library or by
// us.
#pragma once

#include <string>
#include <string_view>

namespace wentra::paths {

// The five operations below come from the jailbreak's own library when the process can open one;
// each operation the library lacks has a fallback of ours. They are looked up once per process, at
// first use, from any thread. Paths are NUL-terminated UTF-8.

/// Fills the table of operations; every function below does so itself, later calls do nothing.
void libroot_load();

/// Prefix of the root file system. Never null; owned by the library.
const char* libroot_dyn_get_root_prefix();

/// Prefix under which the jailbreak installs its files. Never null from our fallback.
const char* libroot_dyn_get_jbroot_prefix();

/// Identifier of the current boot, all zeros when it is not known.
const char* libroot_dyn_get_boot_uuid();

/// The jailbreak's form of `path`, written to `buffer` (1024 bytes, must not overlap `path`) and
/// truncated to it. Without a buffer the result is allocated and the caller frees it with free().
/// A null path gives null.
char* libroot_dyn_jbrootpath(const char* path, char* buffer);

/// The root file system's form of `path`; buffer, ownership and null as above.
char* libroot_dyn_rootfspath(const char* path, char* buffer);

/// Whether the rootless layout is in use: the folder /var/jb exists. Asked anew at each call.
bool isRootless();

/// `path` under /var/jb: its form in the rootless layout.
std::string rootlessPath(const std::string& path);

/// `path` passed through libroot_dyn_jbrootpath: its form in the rootful layout.
std::string rootfulPath(const std::string& path);

/// `path` in the form of the layout that is in use.
std::string twoFormPath(const std::string& path);

/// The preference bundle's folder, in neither form.
inline constexpr std::string_view bundleFolder = "/Library/PreferenceBundles/hovtanprefs.bundle/";

/// The file the user's switches are kept in, in neither form.
inline constexpr const char* preferenceFile =
    "/var/mobile/Library/Preferences/cn.zerk.hovtanprefs.plist";

/// The same in the form of the layout that is in use.
std::string preferencePath();

/// The file `name` (relative, may hold folders) of the preference bundle.
std::string bundlePath(std::string_view name);

} // namespace wentra::paths
