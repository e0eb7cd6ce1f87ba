#include <algorithm>
#include <climits>
#include <functional>
#include <numeric>
#include <random>

#include "device_test.h"

namespace {

using NoteOrder = DeviceTest;
using Predicate = DeviceTest;
using Before = std::function<bool(long long, long long)>;

constexpr int kNoPage = INT_MIN;
constexpr unsigned long long k2To63 = 1ULL << 63U;

void addNote(unsigned long long id, int page = kNoPage) {
    const std::string uri = page == kNoPage ? "" : "at " + std::to_string(page);
    script().pages["at " + std::to_string(page)] = page;
    scripted::addNote(kBook, {id, "u", "", "", "", "", uri});
}

Ids ascendingIds(std::size_t count) {
    Ids ids(count);
    std::iota(ids.begin(), ids.end(), 1);
    return ids;
}

// Adds a book of notes without pages.
void loadIds(const Ids& ids) {
    script() = {};
    for (const unsigned long long id : ids) {
        addNote(id);
    }
}

// Adds a book of notes 1, 2, 3 … on these pages.
void loadPages(const std::vector<int>& pages) {
    script() = {};
    unsigned long long id = 0;
    for (const int page : pages) {
        addNote(++id, page);
    }
}

// Returns the identifiers of the rendered notes, in order.
Ids exportedIds(const std::set<unsigned long long>& selected, const Before& before) {
    script().itemIds[kBook] = kItem;
    EXPECT_EQ(Exporter().export_bookmarks_to_html(kBook, selected, before), 0);
    return renderedIds();
}

TEST_F(NoteOrder, IsByPageNumber) {
    const std::pair<std::vector<int>, Ids> cases[] = {
        {{}, {}},
        {{12, 0, kNoPage, 0}, {2, 3, 4, 1}},
        {{-2, 5, -1, INT_MAX, -3, kNoPage}, {3, 6, 2, 4, 5, 1}},
        {{7, 5, 10, 5, 7, 5}, {2, 4, 6, 1, 5, 3}},
    };
    for (const auto& [pages, expected] : cases) {
        SCOPED_TRACE(testing::PrintToString(pages));
        loadPages(pages);
        EXPECT_EQ(exportedIds({}, nullptr), expected);
    }
}

TEST_F(NoteOrder, EqualNotesKeepOrderOfDatabase) {
    Ids shuffled = ascendingIds(100);
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(1));
    const auto neverBefore = [](auto, auto) { return false; };
    for (const Ids& ids : {Ids{9, 2, 7}, shuffled}) {
        loadIds(ids);
        EXPECT_EQ(exportedIds({}, nullptr), ids);
        EXPECT_EQ(exportedIds({}, neverBefore), ids);
    }
}

TEST_F(NoteOrder, OnlySelectedNotesAreRendered) {
    const std::pair<std::set<unsigned long long>, Ids> cases[] = {
        {{}, {5, 4, 3, 2, 1}}, {{2, 4}, {4, 2}}, {{4, 99}, {4}}, {{99}, {}}};
    loadPages({5, 4, 3, 2, 1});
    for (const auto& [selected, expected] : cases) {
        SCOPED_TRACE(testing::PrintToString(selected));
        EXPECT_EQ(exportedIds(selected, nullptr), expected);
        for (const unsigned long long id : ascendingIds(5)) {
            const std::string asked = "Note(" + std::to_string(id);
            EXPECT_EQ(joined(script().calls).find(asked) != std::string::npos,
                      std::count(expected.begin(), expected.end(), id) != 0);
        }
    }
}

TEST_F(Predicate, ReceivesLargeIdentifiersAsNegativeNumbers) {
    int page = 4;
    for (const unsigned long long id : {ULLONG_MAX, 5ULL, k2To63 - 1, k2To63}) {
        addNote(id, page--);
    }
    EXPECT_EQ(exportedIds({}, std::less<>()), (Ids{k2To63, ULLONG_MAX, 5, k2To63 - 1}));
    EXPECT_EQ(exportedIds({5, k2To63}, std::greater<>()), (Ids{5, k2To63}));
}

TEST_F(Predicate, IsCopiedBeforeItIsCalled) {
    loadPages(std::vector<int>(5, kNoPage));
    const Before before = [asked = false](auto a, auto b) mutable {
        asked = asked || a != b;
        return a == b ? asked : a > b;
    };
    EXPECT_EQ(exportedIds({}, before), (Ids{5, 4, 3, 2, 1}));
    EXPECT_FALSE(before(1, 1)) << "the caller's own was called";
}

TEST_F(Predicate, InconsistentResultsWriteEveryNoteOnce) {
    const Before predicates[] = {
        [](auto, auto) { return true; },
        [](auto a, auto b) { return (b - a + 3) % 3 == 1; },  // cyclic
        [answer = false](auto, auto) mutable { return answer = !answer; },
        [random = std::mt19937(1)](auto, auto) mutable { return random() % 2 == 0; },
    };
    for (const std::size_t size : {0U, 1U, 2U, 3U, 17U, 1000U}) {
        SCOPED_TRACE(size);
        loadPages(std::vector<int>(size, kNoPage));
        const auto neverBefore = [](auto a, auto b) {
            EXPECT_NE(a, b) << "a note must not be compared with itself";
            return false;
        };
        EXPECT_EQ(exportedIds({}, neverBefore), ascendingIds(size));
        for (const Before& before : predicates) {
            Ids ids = exportedIds({}, before);
            std::sort(ids.begin(), ids.end());
            EXPECT_EQ(ids, ascendingIds(size));
        }
    }
}

}  // namespace
