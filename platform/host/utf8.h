// Whether bytes are UTF-8.
#pragma once

#include <string_view>

namespace host {

bool isUtf8(std::string_view bytes);

}  // namespace host
