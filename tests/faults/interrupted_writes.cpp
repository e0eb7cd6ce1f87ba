#include "interrupted_writes.h"

#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <string>

namespace {

int operations = 0;
int interruptedOperation = 0;
Interruption kind = Interruption::kDiskFull;

// Counts an operation. Tells whether the interruption comes in it or has come before.
bool interrupts() {
    ++operations;
    return interruptedOperation != 0 && operations >= interruptedOperation;
}

void killIfAsked() {
    if (kind == Interruption::kKill) {
        kill(getpid(), SIGKILL);
    }
}

ssize_t writeUntilInterrupted(int file, const void* bytes, size_t size, off64_t offset) {
    if (!interrupts()) {
        return pwrite64(file, bytes, size, offset);
    }
    const bool last = operations == interruptedOperation;
    const ssize_t half = last ? pwrite64(file, bytes, size / 2, offset) : 0;
    killIfAsked();
    errno = ENOSPC;
    return half > 0 ? half : -1;
}

int unlinkUntilInterrupted(const char* path) {
    if (interrupts()) {
        killIfAsked();
    }
    return unlink(path);
}

template <class Function>
void replaceCall(const char* name, Function* function) {
    sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    const auto replacement = reinterpret_cast<sqlite3_syscall_ptr>(function);
    if (system->xSetSystemCall(system, name, replacement) != SQLITE_OK) {
        throw std::runtime_error(std::string("SQLite does not call ") + name);
    }
}

}  // namespace

void interruptOperation(int nth, Interruption interruption) {
    operations = 0;
    interruptedOperation = nth;
    kind = interruption;
    replaceCall("pwrite64", writeUntilInterrupted);
    replaceCall("unlink", unlinkUntilInterrupted);
}

int endInterruption() {
    replaceCall<void()>("pwrite64", nullptr);
    replaceCall<void()>("unlink", nullptr);
    return operations;
}
