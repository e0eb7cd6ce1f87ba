// Texts whose order, byte by byte, is the order of the numbers in them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace client {

// Returns ten digits; those of the largest such number for larger ones.
std::string sortKey(std::uint64_t number);

// Returns the keys of all numbers in the text, each after a full stop: "a[2]/b.17" gives
// ".0000000002.0000000017". Other characters do not count.
std::string sortKeyOfNumbers(std::string_view text);

// Returns the text with the key of each number in its place: "part2.html" is before
// "part10.html".
std::string sortKeyOfName(std::string_view text);

// Returns the key of a number from 0 to 1, to the millionth.
std::string sortKeyOfFraction(double fraction);

}  // namespace client
