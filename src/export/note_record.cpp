// The members of Note that the seam leaves to the library.
#include <type_traits>

#include "utilities/note.h"

namespace veloran::utilities {

// A container copies elements whose move may throw; notes may hold large pictures.
static_assert(std::is_nothrow_move_constructible_v<Note>);

Note::Value::Value() : timestamp(std::time(nullptr)) {}

Note::Value::Value(const Value& other) = default;

Note::Value::~Value() = default;

const Note::Value& Note::operator[](Tag tag) const {
    static const Value def;
    const auto entry = tags.find(tag);
    return entry == tags.end() ? def : entry->second;
}

std::string Note::uuid() const { return (*this)[Tag::Uuid].str; }

std::string Note::getAnchorUri() const {
    std::string anchor = getJsonTagElement(Tag::Anchor, "anchor");
    if (anchor.empty()) {
        return getJsonTagElement(Tag::Range, "begin");
    }
    return anchor;
}

}  // namespace veloran::utilities
