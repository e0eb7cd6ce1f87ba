// notes-export: loads, lists, exports and imports the notes on a stand-in device.
#include <exception>
#include <iostream>
#include <new>

#include "command_line.h"
#include "complaint.h"

int main(int argc, char** argv) {
    try {
        const int status = runCommandLine(argc, argv);
        if (!std::cout.flush()) {
            throw Complaint("Could not write the results.");
        }
        return status;
    } catch (const std::bad_alloc&) {
        std::cerr << complaintText("There is not enough memory.");
    } catch (const std::exception& error) {
        std::cerr << complaintText(error.what());
    }
    return 1;
}
