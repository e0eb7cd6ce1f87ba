// The signals that end a program, such as SIGINT, SIGTERM and SIGPIPE.
#pragma once

#include <csignal>

namespace client {

// While it lives, these signals wait, in this thread and in those that it starts.
class SignalBlock {
public:
    SignalBlock();
    ~SignalBlock();
    SignalBlock(const SignalBlock&) = delete;
    SignalBlock& operator=(const SignalBlock&) = delete;

private:
    sigset_t before_;
};

// Makes a signal that ends the program call `cleanUp` first. The program then dies of that
// signal, as its caller expects. Signals that are ignored stay ignored. `cleanUp` may only
// do operations that are safe in a signal handler; it must be the same at each call.
void cleanUpOnSignal(void (*cleanUp)());

}  // namespace client
