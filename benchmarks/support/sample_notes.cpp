#include "sample_notes.h"

#include <iterator>
#include <random>
#include <sstream>

namespace {

constexpr char kText[] =
    "It was the best of times & the worst of times; “Fräulein Möller” wrote <in her own "
    "hand>: \"Où est-il?\" — and then, for three long pages, nothing at all. The "
    "harbour's lamps went out one after the other, the café on the corner closed its "
    "shutters, and only the sea went on with what it said.";
constexpr char kComment[] = "Compare this with chapter 12 & the epilogue…";
static_assert(sizeof kText == 301);

std::vector<SampleNote> makeNotes() {
    std::vector<SampleNote> notes;
    for (int number = 100; number < 164; ++number) {
        notes.push_back({"8d3c52aa-7f01-4c6e-9b1d-201703141" + std::to_string(number),
                         number % 3 == 0 ? "yellow" : "cyan", std::to_string(number), kText,
                         number % 2 == 0 ? kComment : ""});
    }
    return notes;
}

}  // namespace

const std::vector<SampleNote>& sampleNotes() {
    static const std::vector<SampleNote> notes = makeNotes();
    return notes;
}

std::string sampleText(std::size_t index) {
    static const std::vector<std::string> words = [] {
        std::istringstream text(std::string(kText) + ' ' + kComment);
        return std::vector<std::string>(std::istream_iterator<std::string>(text), {});
    }();
    std::minstd_rand random(static_cast<unsigned>(index + 1));  // NOLINT: a fixed seed
    std::string text;
    while (text.size() < 300) {
        text += words[random() % words.size()] + std::to_string(random() % 2) + ' ';
    }
    return text;
}

std::string samplePosition(std::size_t index) {
    const std::size_t page = index % 10 == 0 ? index * 7919 % 1000 : index / 3;
    return "book://position?chapter=4&page=" + std::to_string(page) + ".25&offset=117";
}

std::string samplePicture(std::size_t bytes) {
    std::minstd_rand random;  // NOLINT: a fixed seed
    std::string picture(bytes, '\0');
    for (char& byte : picture) {
        byte = static_cast<char>(random() >> 8);
    }
    return picture;
}

std::string sampleLongComment(std::size_t bytes) {
    std::string comment;
    while (comment.size() < bytes) {
        comment += "nine byte\n";
    }
    return comment;
}
