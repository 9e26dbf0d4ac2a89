#include "radio_loop.h"

#include "pseudo_terminal.h"
#include "simulated_radio.h"

#include <algorithm>
#include <array>
#include <poll.h>

namespace {
using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::nanoseconds;
// The radio's own time-outs are looked at this often.
constexpr LineDirection::Time kTick = milliseconds(20);
// Bytes are handed on in portions, not one by one: a system call each 87 microseconds would eat a processor.
constexpr LineDirection::Time kPortion = milliseconds(1);
// A program that sends faster than the line, or does not read, is not to fill the memory.
constexpr qsizetype kMostWaiting = 16384;
} // namespace

RadioLoop::RadioLoop(PseudoTerminal &terminal, SimulatedRadio &radio, FaultyLine &line, bool paced, int stopDescriptor)
    : mTerminal(terminal), mRadio(radio), mLine(line), mToRadio(paced, Time(0)),
      mToTerminal(paced, line.faults().delay), mStopDescriptor(stopDescriptor) {}

RadioLoop::Time RadioLoop::now() { return duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch()); }

void RadioLoop::run() {
    while (sleep(now())) {
        const Time time = now();
        fromTerminal(time);
        toRadio(time);
        answer(mRadio.elapse(duration_cast<milliseconds>(time)), time);
        toTerminal(time);
    }
}

bool RadioLoop::sleep(Time time) {
    Time wait = kTick;
    for (const LineDirection *direction : {&mToRadio, &mToTerminal})
        if (!direction->isEmpty())
            wait = std::min(wait, std::max(direction->nextDue() - time, kPortion));
    const bool portionsDue = !mToTerminal.isEmpty() && mToTerminal.nextDue() <= time;
    if (portionsDue || mAnswering)
        wait = std::min(wait, kPortion);
    const short terminalEvents = mToRadio.size() < kMostWaiting ? POLLIN : 0;
    std::array<pollfd, 2> watched{pollfd{mTerminal.descriptor(), terminalEvents, 0},
                                  pollfd{mStopDescriptor, POLLIN, 0}};
    const nanoseconds rest = wait;
    const timespec limit{rest.count() / 1'000'000'000, rest.count() % 1'000'000'000};
    ::ppoll(watched.data(), watched.size(), &limit, nullptr);
    return (watched[1].revents & POLLIN) == 0;
}

void RadioLoop::fromTerminal(Time time) {
    if (mToRadio.size() >= kMostWaiting)
        return;
    const int farSpeed = mTerminal.farSpeed();
    const QByteArray bytes = mTerminal.read();
    if (!bytes.isEmpty())
        mToRadio.put(mLine.pass(bytes, farSpeed == mRadio.speed()), mRadio.speed(), time);
}

void RadioLoop::toRadio(Time time) {
    const QByteArray bytes = mToRadio.take(time);
    if (!bytes.isEmpty())
        answer(mRadio.receive(bytes, duration_cast<milliseconds>(time)), time);
}

void RadioLoop::answer(const QByteArray &bytes, Time time) {
    if (bytes.isEmpty())
        return;
    mToTerminal.clear();
    mToTerminal.put(bytes, mRadio.speed(), time);
    if (mUnwritten.size() > kMostWaiting)
        mUnwritten.clear();
    mAnswering = true;
}

void RadioLoop::toTerminal(Time time) {
    const QByteArray out = mToTerminal.take(time);
    if (!out.isEmpty())
        mUnwritten += mLine.pass(out, mTerminal.farSpeed() == mRadio.speed());
    if (!mUnwritten.isEmpty())
        mUnwritten.remove(0, mTerminal.write(mUnwritten));
    if (!mAnswering || !mToTerminal.isEmpty())
        return;
    mAnswering = false;
    mRadio.answerSent(duration_cast<milliseconds>(time));
}
