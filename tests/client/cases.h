// Tables of texts and of the results for them.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

struct Case {
    std::string given;
    std::string expected;
};

struct NamedCase {
    const char* name;
    std::string given;
    std::string expected;
};

template <std::size_t count, class Function>
void expectEach(const Case (&cases)[count], const Function& function) {
    for (const auto& [given, expected] : cases) {
        EXPECT_EQ(function(given), expected) << given;
    }
}

template <std::size_t count, class Function>
void expectEach(const NamedCase (&cases)[count], const Function& function) {
    for (const auto& [name, given, expected] : cases) {
        EXPECT_EQ(function(given), expected) << name;
    }
}
