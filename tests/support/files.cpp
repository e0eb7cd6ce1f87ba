#include "files.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

std::string readFile(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

void writeFile(const std::string& path, const std::string& content) {
    std::filesystem::create_directories(std::filesystem::absolute(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string withoutDates(const std::string& document) {
    const std::regex date("\\d{4}(-\\d\\d){2} \\d\\d(:\\d\\d){2}");
    return std::regex_replace(document, date, "@DATE@");
}
