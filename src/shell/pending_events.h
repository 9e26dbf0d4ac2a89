#pragma once

#include <QCoreApplication>

// Lets pending window events run, user input included; deferred deletes wait for the outer loop.
inline void letPendingEventsRun() { QCoreApplication::processEvents(); }
