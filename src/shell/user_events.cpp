#include "user_events.h"

#include "busy_pointer.h"
#include "pending_events.h"
#include "window_input_filter.h"

UserEvents::UserEvents(BusyPointer &pointer, WindowInputFilter &filter) : mPointer(pointer), mFilter(filter) {}

void UserEvents::DisableUserEvents(bool blnStatus) {
    letPendingEventsRun();
    if (blnStatus) {
        mPointer.MouseHourglass();
        mFilter.SetDisabled(true);
        return;
    }
    mFilter.SetDisabled(false);
    mPointer.MouseDefault();
}
