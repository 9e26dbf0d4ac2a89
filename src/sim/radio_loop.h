#pragma once

#include "line_model.h"

class PseudoTerminal;
class SimulatedRadio;

// Moves bytes between the pseudo-terminal and the radio at the line's pace until the process is asked to end.
class RadioLoop {
  public:
    // None of them is owned. stopDescriptor becomes readable when the loop is to end.
    RadioLoop(PseudoTerminal &terminal, SimulatedRadio &radio, FaultyLine &line, bool paced, int stopDescriptor);

    void run();

  private:
    using Time = LineDirection::Time;

    [[nodiscard]] static Time now();
    void fromTerminal(Time time);
    void toRadio(Time time);
    void toTerminal(Time time);
    void answer(const QByteArray &bytes, Time time);
    // False when the loop is to end.
    [[nodiscard]] bool sleep(Time time);

    PseudoTerminal &mTerminal;
    SimulatedRadio &mRadio;
    FaultyLine &mLine;
    LineDirection mToRadio;
    LineDirection mToTerminal;
    QByteArray mUnwritten; // came out of the line, the system has not taken it yet
    bool mAnswering = false;
    int mStopDescriptor;
};
