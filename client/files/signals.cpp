#include "client/files/signals.h"

#include <atomic>

namespace client {
namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE, SIGXCPU};

std::atomic<void (*)()> registered{nullptr};
static_assert(decltype(registered)::is_always_lock_free);

sigset_t endingSignals() {
    sigset_t result;
    sigemptyset(&result);
    for (const int signal : kSignals) {
        sigaddset(&result, signal);
    }
    return result;
}

extern "C" void cleanUpAndDie(int signal) {
    registered.load()();
    // With its default action again, once this handler has returned.
    static_cast<void>(raise(signal));
}

void handle(int signal) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_DFL) {
        action.sa_handler = cleanUpAndDie;
        action.sa_mask = endingSignals();
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(signal, &action, nullptr);
    }
}

}  // namespace

SignalBlock::SignalBlock() {
    const sigset_t signals = endingSignals();
    pthread_sigmask(SIG_BLOCK, &signals, &before_);
}

SignalBlock::~SignalBlock() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

void cleanUpOnSignal(void (*cleanUp)()) {
    registered = cleanUp;
    for (const int signal : kSignals) {
        handle(signal);
    }
}

}  // namespace client
