#pragma once

#include <QtGlobal>

// The radio operations that the window starts.
enum class InterrogationType : qint32 { kInterrogate = 0, kRead = 1, kProgram = 2 };
