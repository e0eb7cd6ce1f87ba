// Strict access to the members of one JSON object.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "client/sources/content/json.h"

namespace client {

// Throws a UserError with the location if a member has the wrong type, a required one is
// missing, or, at the end, if a member is there twice or no getter has read it.
class JsonObject {
public:
    // `location` is the position of the object in the file, for messages ("book 2, note
    // 5"). `value` must outlive this object and the texts that it returns.
    JsonObject(const JsonValue& value, std::string location);

    std::string_view requiredText(const char* name);
    std::string_view text(const char* name);
    std::optional<double> number(const char* name);
    std::optional<std::int64_t> integer(const char* name);
    const JsonValue& array(const char* name);

    // Returns the content of the file that the member names, relative to `folder`; nullopt
    // if the member is missing or empty.
    std::optional<std::string> file(const char* name, const std::filesystem::path& folder);

    [[noreturn]] void fail(const std::string& what) const;

    // Must be called after all getters.
    void requireNoOtherMembers() const;

private:
    const JsonValue* find(const char* name);
    [[noreturn]] void failType(const char* name) const;

    const JsonValue& value_;
    std::string location_;
    std::vector<std::string_view> known_;
};

}  // namespace client
