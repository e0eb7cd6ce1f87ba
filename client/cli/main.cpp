// notes-export: loads, lists, exports and imports the notes on a device of the host
// platform.
#include <cerrno>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>
#include <system_error>

#include "client/cli/run_command_line.h"
#include "client/commands/batch.h"
#include "client/error.h"

int main(int argc, char** argv) {
    try {
        const int status = runCommandLine(argc, argv);
        if (!std::cout.flush()) {
            static_cast<void>(std::fflush(stdout));  // fails again, and tells why
            complain("Could not write the results", {errno, std::generic_category()});
        }
        return status;
    } catch (const FailuresReported&) {
        return 1;
    } catch (const std::bad_alloc&) {
        std::cerr << complaintText("There is not enough memory.");
    } catch (const std::exception& error) {
        std::cerr << complaintText(error.what());
    }
    return 1;
}
