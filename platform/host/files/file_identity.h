// Which file a path leads to.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

namespace host {

// Device and inode: two paths with the same identity lead to the same file.
using FileIdentity = std::tuple<std::uint32_t, std::uint32_t, std::uint64_t>;

// Nothing when there is no file at `path`.
std::optional<FileIdentity> identityOf(const std::string& path);

}  // namespace host
