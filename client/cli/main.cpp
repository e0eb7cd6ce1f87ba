// notes-export: loads, lists, exports and imports the notes of a collection.
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>
#include <system_error>

#include "client/cli/command_line.h"
#include "client/commands/batch.h"
#include "client/error.h"
#include "client/terminal/terminal.h"

namespace {

int run(int argc, char** argv) {
    const int status = client::runCommandLine(argc, argv);
    if (!std::cout.flush()) {
        static_cast<void>(std::fflush(stdout));  // fails again and sets errno
        throw client::UserError("Could not write the results",
                                {errno, std::generic_category()});
    }
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    // At the size limit of a file, a write fails instead of ending the process.
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    try {
        return run(argc, argv);
    } catch (const client::FailuresReported&) {
        return 1;
    } catch (const std::bad_alloc&) {
        std::cerr << client::errorText("There is not enough memory.");
    } catch (const std::exception& error) {
        std::cerr << client::errorText(error.what());
    }
    return 1;
}
