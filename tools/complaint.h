// An error that the user can do something about.
#pragma once

#include <stdexcept>

// Its text says what is wrong and what to do; the client prints it and exits with 1.
struct Complaint : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// What every complaint on standard error starts with: the program's name.
const char* complaintStart();
