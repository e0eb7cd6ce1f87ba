#!/usr/bin/env bash
# Installs into a scratch prefix, moves that, and builds the C client with it, by CMake's
# find_package and by pkg-config. Both clients must carry notes to another device.
#   installed_library_test.sh BUILD_FOLDER EXAMPLE_FOLDER LIBDIR
set -euo pipefail
build=$1 example=$2 libdir=$3

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
cmake --install "$build" --prefix "$scratch/first" >/dev/null
mv first "a moved prefix"
prefix="$scratch/a moved prefix"
test -L "$prefix/$libdir/libnotes_export.so"
if grep -rF -e "$build" -e "$scratch" "$prefix/include" "$prefix/$libdir/cmake" \
    "$prefix/$libdir/pkgconfig"; then
    exit 1  # it names the folder of the build or of the first installation
fi

cmake -S "$example" -B by_cmake -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build by_cmake >/dev/null

mkdir by_pkg_config
export PKG_CONFIG_PATH="$prefix/$libdir/pkgconfig"
eval "cc '$example/export_notes.c' -o by_pkg_config/export_notes \
    -Wl,-rpath,'$prefix/$libdir' $(pkg-config --cflags --libs notes_export)"

cat >device.json <<'JSON'
{"books": [{"hash": "ab12", "title": "Emma", "notes": [
    {"uuid": "u1", "timestamp": 1, "text": "handsome, clever, and rich"}]}]}
JSON
for client in by_cmake by_pkg_config; do
    mkdir "$client/one" "$client/two"
    "$prefix/bin/notes-export" -C "$client/one" load device.json >/dev/null
    exported=$(cd "$client/one" && ../export_notes ab12)
    [ "$(cd "$client/two" && ../export_notes --import "../one/$exported")" = 1 ]
    [ "$("$prefix/bin/notes-export" -C "$client/two" notes ab12 | cut -f4)" = \
        "handsome, clever, and rich" ]
done
