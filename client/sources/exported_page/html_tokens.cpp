#include "client/sources/exported_page/html_tokens.h"

#include <algorithm>

#include "client/sources/exported_page/character_references.h"
#include "client/text/affixes.h"
#include "client/text/ascii.h"

namespace client {
namespace {

constexpr std::string_view kSpaces = " \t\r\n\f";
constexpr std::size_t kMaxAttributes = 100;  // of a tag; others are ignored

std::string_view takeUntil(std::string_view& text, std::string_view ends) {
    const std::size_t length = std::min(text.find_first_of(ends), text.size());
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(length);
    return taken;
}

bool startsTag(std::string_view text) {
    return text.size() > 1 && text[0] == '<' &&
           (isAsciiLetter(text[1]) ||
            (text[1] == '/' && text.size() > 2 && isAsciiLetter(text[2])));
}

bool startsUnseen(std::string_view text) {
    return text.size() > 1 && text[0] == '<' && (text[1] == '!' || text[1] == '?');
}

}  // namespace

bool HtmlToken::hasAttribute(std::string_view name) const {
    return std::any_of(attributes.begin(), attributes.end(),
                       [name](const auto& attribute) { return attribute.first == name; });
}

std::string HtmlToken::attribute(std::string_view name) const {
    const auto found =
        std::find_if(attributes.begin(), attributes.end(),
                     [name](const auto& attribute) { return attribute.first == name; });
    return found == attributes.end() ? "" : withoutReferences(found->second);
}

bool HtmlTokens::next(HtmlToken& token) {
    while (startsUnseen(rest_)) {
        skipPast(startsWith(rest_, "<!--") ? "-->" : ">");
    }
    token = {};
    if (rest_.empty()) {
        return false;
    }
    if (startsTag(rest_)) {
        readTag(token);
    } else {
        readText(token);
    }
    return true;
}

void HtmlTokens::readText(HtmlToken& token) {
    std::size_t length = 1;  // a "<" that starts nothing is text
    while (length < rest_.size() && !startsTag(rest_.substr(length)) &&
           !startsUnseen(rest_.substr(length))) {
        length = std::min(rest_.find('<', length + 1), rest_.size());
    }
    token.text = withoutReferences(rest_.substr(0, length));
    rest_.remove_prefix(length);
}

void HtmlTokens::readTag(HtmlToken& token) {
    const bool isEnd = rest_[1] == '/';
    rest_.remove_prefix(isEnd ? 2 : 1);
    token.kind = isEnd ? HtmlToken::Kind::End : HtmlToken::Kind::Start;
    token.text = asciiLowered(takeUntil(rest_, " \t\r\n\f/>"));
    readAttributes(token);
    if (!isEnd && (token.text == "script" || token.text == "style")) {
        skipContent(token.text);
    }
}

void HtmlTokens::readAttributes(HtmlToken& token) {
    while (true) {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r\n\f/"), rest_.size()));
        if (rest_.empty() || rest_[0] == '>') {
            rest_.remove_prefix(rest_.empty() ? 0 : 1);
            return;
        }
        const std::string_view first = rest_.substr(0, 1);  // also a "=" without a name
        rest_.remove_prefix(1);
        const std::string_view name(first.data(),
                                    1 + takeUntil(rest_, " \t\r\n\f/>=").size());
        const std::string_view value = readValue();
        if (token.attributes.size() < kMaxAttributes) {
            token.attributes.emplace_back(asciiLowered(name), value);
        }
    }
}

std::string_view HtmlTokens::readValue() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kSpaces), rest_.size()));
    if (rest_.empty() || rest_[0] != '=') {
        return {};
    }
    rest_.remove_prefix(1);
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kSpaces), rest_.size()));
    if (rest_.empty() || (rest_[0] != '"' && rest_[0] != '\'')) {
        return takeUntil(rest_, " \t\r\n\f>");
    }
    const std::string_view quote = rest_.substr(0, 1);
    rest_.remove_prefix(1);
    const std::string_view value = takeUntil(rest_, quote);
    rest_.remove_prefix(rest_.empty() ? 0 : 1);
    return value;
}

void HtmlTokens::skipPast(std::string_view end) {
    const std::size_t at = rest_.find(end);
    rest_.remove_prefix(at == std::string_view::npos ? rest_.size() : at + end.size());
}

void HtmlTokens::skipContent(const std::string& element) {
    while (!rest_.empty()) {
        skipPast("</");
        if (asciiLowered(rest_.substr(0, element.size())) == element) {
            skipPast(">");
            return;
        }
    }
}

}  // namespace client
