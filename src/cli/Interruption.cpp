// SPDX-License-Identifier: GPL-3.0-or-later
#include "Interruption.h"

#include <atomic>
#include <csignal>

namespace chronomender {
namespace {

std::atomic<Cancellation *> target{nullptr};
static_assert(std::atomic<Cancellation *>::is_always_lock_free);

extern "C" void requestStop(int) {
    if (Cancellation *cancellation = target.load())
        cancellation->request();
}

void setHandler(int signal, void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

} // namespace

Interruption::Interruption(Cancellation &cancellation) {
    target.store(&cancellation);
    setHandler(SIGINT, requestStop);
    setHandler(SIGTERM, requestStop);
    setHandler(SIGPIPE, SIG_IGN);
}

Interruption::~Interruption() {
    setHandler(SIGINT, SIG_DFL);
    setHandler(SIGTERM, SIG_DFL);
    target.store(nullptr);
}

} // namespace chronomender
