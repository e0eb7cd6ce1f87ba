// Reading the members of one JSON object, strictly.
#pragma once

#include <json/value.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>

// Each getter notes that its member is known. A member of the wrong type, a missing one
// that is required and, at the end, one that nobody asked for is a Complaint that names
// the place.
class JsonObject {
public:
    // `place` tells where the object stands, for complaints ("book 2, note 5").
    // `value` must outlive this object.
    JsonObject(const Json::Value& value, std::string place);

    std::string requiredText(const std::string& name);
    std::string text(const std::string& name);
    std::optional<double> number(const std::string& name);
    std::optional<long long> integer(const std::string& name);
    const Json::Value& array(const std::string& name);

    // The content of the file that the member names, relative to `folder`; nothing when the
    // member is missing or empty.
    std::optional<std::string> file(const std::string& name,
                                    const std::filesystem::path& folder);

    [[noreturn]] void complain(const std::string& what) const;

    // To be called when everything has been asked for.
    void complainAboutUnknownMembers() const;

private:
    const Json::Value* find(const std::string& name, Json::ValueType type);

    const Json::Value& value_;
    std::string place_;
    std::set<std::string> known_;
};
