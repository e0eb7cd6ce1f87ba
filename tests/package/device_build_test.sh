#!/usr/bin/env bash
# Builds the library for a device whose own header defines the note's members, with the default
# device root. The library must link and contain the device's fixed paths.
#   device_build_test.sh PROJECT
set -euo pipefail
project=$1

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
cp -r "$project/platform/memory" platform
mkdir platform/utilities
cat "$project/platform/include/utilities/note.h" - >platform/utilities/note.h <<'CPP'
namespace veloran::utilities {
inline Note::Value::Value() : timestamp(std::time(nullptr)) {}
inline Note::Value::Value(const Value& other) = default;
inline Note::Value::~Value() = default;
inline const Note::Value& Note::operator[](Tag tag) const {
    static const Value none;
    const auto entry = tags.find(tag);
    return entry == tags.end() ? none : entry->second;
}
inline std::string Note::uuid() const { return (*this)[Tag::Uuid].str; }
inline std::string Note::getAnchorUri() const {
    return getJsonTagElement(Tag::Anchor, "anchor");
}
}  // namespace veloran::utilities
CPP

cmake -S "$project" -B build -G Ninja -DBUILD_TESTING=OFF -DNOTES_EXPORT_BUILD_CLIENT=OFF \
    -DNOTES_EXPORT_PLATFORM_DIR="$scratch/platform" -DNOTES_EXPORT_NOTE_RECORD=OFF >/dev/null
cmake --build build
for path in Notes system/config/books.db system/reader/notes.css; do
    strings build/src/libnotes_export.so | grep -xF "/mnt/ext1/$path"
done
