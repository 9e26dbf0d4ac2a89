#pragma once

#include <QVariant>

// What the enabler remembers between two notifications.
struct EditState {
    bool mblnOKToLeaveForm = true; // false after a refused validation, until one succeeds
    QVariant mvarOriginalValue;    // of a list or check field on entry; Empty after a forced save
};
