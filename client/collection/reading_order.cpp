#include "client/collection/reading_order.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>
#include <tuple>
#include <utility>

#include "client/collection/position.h"

namespace client {
namespace {

enum class Decisive { Location, Order, Page };

std::string_view prefixOf(const std::string& order) {
    return std::string_view(order).substr(0, order.find('.'));
}

Decisive decisivePart(const std::vector<PlacedNote>& notes) {
    const PlacedNote* ordered = nullptr;
    bool isOrder = true;  // all placed notes so far have an order of one kind
    for (const PlacedNote& note : notes) {
        if (note.place.location) {
            return Decisive::Location;
        }
        if (hasOrder(note.place)) {
            ordered = ordered == nullptr ? &note : ordered;
            isOrder =
                isOrder && prefixOf(note.place.order) == prefixOf(ordered->place.order);
        } else {
            isOrder = isOrder && !note.place.page;
        }
    }
    return isOrder && ordered != nullptr ? Decisive::Order : Decisive::Page;
}

using Key = std::tuple<int, double, std::string_view>;

constexpr Key kNoKey(-1, 0, "");

// Returns kNoKey if the note has no place that decides.
Key keyOf(const PlacedNote& note, Decisive part) {
    const Place& place = note.place;
    if (part == Decisive::Order) {
        return hasOrder(place) ? Key(0, 0, place.order) : kNoKey;
    }
    if (place.location) {
        return {0, static_cast<double>(*place.location), ""};
    }
    return place.page ? Key(1, *place.page, "") : kNoKey;
}

// A note, and what decides where it stands.
struct Entry {
    std::size_t index;
    const PlacedNote* note;
    Key key;
    std::size_t anchor = 0;  // number of the placed note that it is or follows; 0 for none

    bool hasKey() const { return key != kNoKey; }
    auto inBook() const {
        return std::tuple(key, note->time, std::string_view(note->uuid));
    }
    auto inTime() const {
        const std::string_view order = note->place.order;
        return std::tuple(note->time, !hasKey(), anchor,
                          isRank(order) ? order : std::string_view(),
                          std::string_view(note->uuid));
    }
};

template <class Property>
void sortBy(const Property& property, std::vector<Entry>& entries) {
    std::sort(entries.begin(), entries.end(),
              [&](const Entry& a, const Entry& b) { return property(a) < property(b); });
}

std::vector<Entry> entriesOf(const std::vector<PlacedNote>& notes) {
    const Decisive part = decisivePart(notes);
    std::vector<Entry> entries;
    entries.reserve(notes.size());
    for (const PlacedNote& note : notes) {
        entries.push_back({entries.size(), &note, keyOf(note, part)});
    }
    return entries;
}

}  // namespace

// Places the notes with a key, then lets each of the others follow.
void sortForReading(std::vector<PlacedNote>& notes) {
    std::vector<Entry> entries = entriesOf(notes);
    sortBy([](const Entry& entry) { return entry.inBook(); }, entries);
    std::size_t anchor = 0;
    for (Entry& entry : entries) {
        entry.anchor = entry.hasKey() ? ++anchor : 0;
    }
    sortBy([](const Entry& entry) { return entry.inTime(); }, entries);
    anchor = 0;
    for (Entry& entry : entries) {
        anchor = entry.hasKey() ? entry.anchor : anchor;
        entry.anchor = anchor;
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return std::tuple(a.anchor, !a.hasKey()) < std::tuple(b.anchor, !b.hasKey());
    });
    std::vector<PlacedNote> sorted;
    sorted.reserve(notes.size());
    for (const Entry& entry : entries) {
        sorted.push_back(std::move(notes[entry.index]));
    }
    notes = std::move(sorted);
}

// The library breaks ties at will, and counts a note without a number as one with 0.
bool isPageOrder(const std::vector<PlacedNote>& notes) {
    constexpr double kEnd = std::numeric_limits<std::int32_t>::max();
    double last = -1;
    for (const PlacedNote& note : notes) {
        const Place& place = note.place;
        const double shown = std::trunc(
            place.page.value_or(static_cast<double>(place.location.value_or(0))));
        if (shown <= last || shown >= kEnd) {
            return false;
        }
        last = shown;
    }
    return true;
}

}  // namespace client
