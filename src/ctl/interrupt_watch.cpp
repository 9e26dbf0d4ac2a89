#include "interrupt_watch.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

#include <utility>

namespace {
sigset_t interruptSet() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    return set;
}
} // namespace

InterruptWatch::InterruptWatch(std::function<void()> handler) : mHandler(std::move(handler)) {
    const sigset_t set = interruptSet();
    ::sigprocmask(SIG_BLOCK, &set, nullptr);
    mDescriptor = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    mNotifier = new QSocketNotifier(mDescriptor, QSocketNotifier::Read, this);
    connect(mNotifier, &QSocketNotifier::activated, this, &InterruptWatch::arrived);
}

InterruptWatch::~InterruptWatch() {
    const sigset_t set = interruptSet();
    ::close(mDescriptor);
    ::sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

void InterruptWatch::arrived() {
    signalfd_siginfo info{};
    if (::read(mDescriptor, &info, sizeof info) == ssize_t(sizeof info))
        mHandler();
}
