// What the signals that end a program (SIGINT, SIGTERM, SIGHUP) may leave behind: nothing.
#pragma once

#include <csignal>

// While it lives, these signals wait, in this thread and in those that it starts.
class SignalsHeld {
public:
    SignalsHeld();
    ~SignalsHeld();
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

private:
    sigset_t before_;
};

// Something that must not outlive the program.
class Leftover {
public:
    // Called in a signal handler: may only do what is safe there.
    virtual void remove() const noexcept = 0;

protected:
    ~Leftover() = default;
};

// From now on, a signal that ends the program removes `leftover` first, if that is not
// null; the program then dies of that signal, as its caller expects. Ignored signals stay
// ignored. Called while signals are held.
void removeOnSignal(const Leftover* leftover);
