#include "client/files/cleanup_on_signal.h"

#include <atomic>

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

std::atomic<const Leftover*> registered{nullptr};
static_assert(std::atomic<const Leftover*>::is_always_lock_free);

sigset_t endingSignals() {
    sigset_t result;
    sigemptyset(&result);
    for (const int signal : kSignals) {
        sigaddset(&result, signal);
    }
    return result;
}

extern "C" void removeLeftover(int signal) {
    if (const Leftover* leftover = registered) {
        leftover->remove();
    }
    static_cast<void>(
        raise(signal));  // with its default action again, once this handler has returned
}

void handle(int signal) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_DFL) {
        action.sa_handler = removeLeftover;
        action.sa_mask = endingSignals();
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(signal, &action, nullptr);
    }
}

}  // namespace

SignalsHeld::SignalsHeld() {
    const sigset_t signals = endingSignals();
    pthread_sigmask(SIG_BLOCK, &signals, &before_);
}

SignalsHeld::~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

void removeOnSignal(const Leftover* leftover) {
    registered = leftover;
    for (const int signal : kSignals) {
        handle(signal);
    }
}
