// The members of Note that read its tags.
#include "utilities/note.h"
#include "store/note_tags.h"

namespace veloran::utilities {
namespace {

std::string textOf(const Note& note, host::NoteTag tag) {
    const auto found = note.tags.find(Note::Tag{tag});
    return found == note.tags.end() ? std::string() : found->second.str;
}

}  // namespace

std::string Note::getJsonTagElement(Tag tag, const std::string& key) const {
    const auto found = tags.find(tag);
    if (found == tags.end() || !found->second.json || !found->second.json->isObject()) {
        return {};
    }
    const Json::Value* element =
        found->second.json->find(key.data(), key.data() + key.size());
    return element != nullptr && element->isString() ? element->asString() : std::string();
}

std::string Note::getColor() const { return textOf(*this, host::kColorTag); }
std::string Note::getText() const { return textOf(*this, host::kTextTag); }
std::string Note::getImage() const { return textOf(*this, host::kImageTag); }
std::string Note::getNote() const { return textOf(*this, host::kCommentTag); }

}  // namespace veloran::utilities
