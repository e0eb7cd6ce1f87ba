// The identity of a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

namespace host {

// Device and inode: two paths with the same identity lead to the same file.
using FileIdentity = std::tuple<std::uint32_t, std::uint32_t, std::uint64_t>;

// Returns the identity of the file at `path`; nullopt if there is none.
std::optional<FileIdentity> identityOf(const std::string& path);

}  // namespace host
