// notes-export: loads, lists, exports and imports the notes on a stand-in device.
#include <exception>
#include <iostream>

#include "command_line.h"
#include "complaint.h"

int main(int argc, char** argv) {
    try {
        const int status = runCommandLine(argc, argv);
        if (!std::cout.flush()) {
            throw Complaint("Could not write the results.");
        }
        return status;
    } catch (const std::exception& error) {
        std::cerr << complaintStart() << error.what() << '\n';
        return 1;
    }
}
