#pragma once

class BusyPointer;
class WindowInputFilter;

// Brackets long work: the hourglass shows and the main window takes no input. The pointer nests, the disabled window
// does not: the first false enables it.
class UserEvents {
  public:
    UserEvents(BusyPointer &pointer, WindowInputFilter &filter);
    // Pending events run first.
    void DisableUserEvents(bool blnStatus);

  private:
    BusyPointer &mPointer;
    WindowInputFilter &mFilter;
};

// The bracket for a scope.
class DisabledUserEventsGuard {
  public:
    explicit DisabledUserEventsGuard(UserEvents &events) : mEvents(events) { mEvents.DisableUserEvents(true); }
    ~DisabledUserEventsGuard() { mEvents.DisableUserEvents(false); }
    DisabledUserEventsGuard(const DisabledUserEventsGuard &) = delete;
    DisabledUserEventsGuard &operator=(const DisabledUserEventsGuard &) = delete;

  private:
    UserEvents &mEvents;
};
