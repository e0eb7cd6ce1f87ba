// An error that the user can do something about.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

// Its text says what is wrong and what to do; the client prints it and exits with 1.
struct Complaint : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Complains that `what` failed, in the system's words.
[[noreturn]] void complain(const std::string& what, std::error_code why);

// The complaint as standard error shows it: after the program's name, each line as
// one_line.h makes it, since paths and messages may hold anything.
std::string complaintText(const std::string& text);
