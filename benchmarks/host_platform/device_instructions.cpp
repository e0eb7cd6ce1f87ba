// Runs a job on the host platform: device_instructions export|import NOTES
#include <cstdlib>
#include <string>

#include "counted.h"
#include "device.h"

int main(int count, char** arguments) {
    if (count != 3) {
        return EXIT_FAILURE;
    }
    enterCollection(bookOfNotes, std::stoul(arguments[2]));
    if (std::string(arguments[1]) == "export") {
        counted(exportBook);
    } else {
        removeReaderDatabase();
        counted(importDocument);
    }
    return EXIT_SUCCESS;
}
