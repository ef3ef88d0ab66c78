#!/usr/bin/env bash
# sysroot.sh FOLDER: unpacks the arm64 packages of what the desktop host links into FOLDER; the machine's own packages stay as they are.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

folder="$1"
triple=aarch64-linux-gnu

# The libraries of the group "build"; those that only tests and benchmarks link stay away.
mapfile -t wanted < <(scripts/install.sh --list build |
    grep -E '^(lib.*|nlohmann.*)-dev$' | grep -vE '^lib(gtest|benchmark)-dev$')
wanted+=(libstdc++-12-dev)

[[ "$(cat "$folder.packages" 2>/dev/null)" != "${wanted[*]}" ]] || exit 0
rm -rf "$folder" "$folder.apt" "$folder.packages"
mkdir -p "$folder" "$folder.apt"/{state/lists/partial,cache/archives/partial}
folder="$(realpath "$folder")"
apt="$folder.apt"

# An apt of its own: an arm64 machine with the sources of this one on which nothing is installed.
: >"$apt/state/status"
cat >"$apt/apt.conf" <<END
APT::Architecture "arm64";
APT::Architectures { "arm64"; };
APT::Install-Recommends "false";
APT::Sandbox::User "root";
Acquire::Languages "none";
Dir::State "$apt/state";
Dir::State::status "$apt/state/status";
Dir::Cache "$apt/cache";
END
export APT_CONFIG="$apt/apt.conf"
apt-get update -qq

# What these packages need, but for compilers, interpreters and fonts.
apt-get install --yes --print-uris "${wanted[@]}" |
    sed -n "s/^'[^ ]* \([^_ ]*\)_.*/\1/p" |
    grep -vE '^(gcc|cpp|gobjc|binutils|perl|libperl|python3|libpython3|fonts|gir1)\b' \
        >"$apt/names"
(cd "$apt/cache/archives" && xargs apt-get download -qq <"$apt/names")
for package in "$apt"/cache/archives/*.deb; do
    dpkg-deb --extract "$package" "$folder"
done
# One folder of libraries, as on a machine that was installed.
cp -a "$folder/lib/." "$folder/usr/lib/"
rm -rf "${folder:?}/lib"
ln -s usr/lib "$folder/lib"

# Under emulation, a file that is not here is the machine's: programs, settings, fonts, time zones.
find "$folder" "$folder/usr" -mindepth 1 -maxdepth 1 ! -name usr ! -name lib ! -name include \
    ! -name share -exec rm -rf {} +
find "$folder/usr/share" -mindepth 1 -maxdepth 1 ! -name cmake ! -name pkgconfig -exec rm -rf {} +

# The linker would follow absolute links out of the folder.
find "$folder" -type l -lname '/*' | while read -r link; do
    target="$folder$(readlink "$link")"
    [[ ! -e "$target" ]] || ln -sfnr "$target" "$link"
done
# The compiler's own folder has it natively; the cross-compiler's has not.
ln -sf libobjc.so.4 "$folder/usr/lib/$triple/libobjc.so"
# What the package writes when it is installed.
pixbuf="$folder/usr/lib/$triple/gdk-pixbuf-2.0"
qemu-aarch64-static -L "$folder" "$pixbuf/gdk-pixbuf-query-loaders" >"$pixbuf/2.10.0/loaders.cache"
rm -rf "$apt"
printf '%s\n' "${wanted[*]}" >"$folder.packages"
