#include "complaint.h"

#include <unistd.h>

#include "terminal.h"

const char* complaintStart() {
    return isColorful(STDERR_FILENO) ? "\033[1;31mnotes-export:\033[0m " : "notes-export: ";
}
