// Strict access to the members of one JSON object.
#pragma once

#include <json/value.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace client {

// Throws a UserError with the location if a member has the wrong type, a required one is
// missing, or, at the end, if no getter has read a member.
class JsonObject {
public:
    // `location` is the position of the object in the file, for messages ("book 2, note
    // 5"). `value` must outlive this object.
    JsonObject(const Json::Value& value, std::string location);

    std::string requiredText(const std::string& name);
    std::string text(const std::string& name);
    std::optional<double> number(const std::string& name);
    std::optional<long long> integer(const std::string& name);
    const Json::Value& array(const std::string& name);

    // Returns the content of the file that the member names, relative to `folder`; nullopt
    // if the member is missing or empty.
    std::optional<std::string> file(const std::string& name,
                                    const std::filesystem::path& folder);

    [[noreturn]] void fail(const std::string& what) const;

    // Must be called after all getters.
    void requireNoOtherMembers() const;

private:
    const Json::Value* find(const std::string& name, Json::ValueType type);

    const Json::Value& value_;
    std::string location_;
    std::set<std::string> known_;
};

}  // namespace client
