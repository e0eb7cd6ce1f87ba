// The exception for errors that a user can mend.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

namespace client {

// Its text says what failed, why, and what to do. The client prints it and exits with 1.
struct UserError : std::runtime_error {
    using std::runtime_error::runtime_error;

    // `what` failed, for a reason that the system gives.
    UserError(const std::string& what, std::error_code why)
        : std::runtime_error(what + ": " + why.message()) {}
};

}  // namespace client
