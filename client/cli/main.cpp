// notes-export: loads, lists, exports and imports the notes of a collection.
#include <csignal>
#include <exception>
#include <iostream>
#include <new>

#include "client/cli/command_line.h"
#include "client/commands/batch.h"
#include "client/terminal/standard_output.h"
#include "client/terminal/terminal.h"

namespace {

// Returns the exit status of the command, whose failures have been reported.
int run(int argc, char** argv) {
    int status = 1;
    client::report([&] {
        try {
            status = client::runCommandLine(argc, argv);
        } catch (const client::FailuresReported&) {  // the status stays 1
        }
        return client::Outcome();
    });
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    // At the size limit of a file, a write fails instead of ending the process.
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    try {
        client::StandardOutput output;
        const int status = run(argc, argv);
        output.requireWritten();
        return status;
    } catch (const std::bad_alloc&) {
        std::cerr << client::errorText("There is not enough memory.");
    } catch (const std::exception& error) {
        std::cerr << client::errorText(error.what());
    }
    return 1;
}
