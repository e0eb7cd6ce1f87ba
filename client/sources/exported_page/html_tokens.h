// A tokenizer for HTML and XHTML, in linear time even for invalid documents.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace client {

struct HtmlToken {
    enum class Kind { Text, Start, End };

    Kind kind = Kind::Text;
    std::string text;  // of a tag: its name, in lower case

    // Returns the value of a start tag's attribute, with its references resolved; empty if
    // there is none.
    std::string attribute(std::string_view name) const;
    bool hasAttribute(std::string_view name) const;

    std::vector<std::pair<std::string, std::string_view>> attributes = {};
};

class HtmlTokens {
public:
    // `html`, in UTF-8, must outlive this object and its tokens.
    explicit HtmlTokens(std::string_view html) : rest_(html) {}

    // Reads the next token; returns false at the end. Skips comments, declarations, scripts
    // and style sheets.
    bool next(HtmlToken& token);

private:
    void readText(HtmlToken& token);
    void readTag(HtmlToken& token);
    void readAttributes(HtmlToken& token);
    std::string_view readValue();
    void skipPast(std::string_view end);
    void skipContent(const std::string& element);

    std::string_view rest_;
};

}  // namespace client
