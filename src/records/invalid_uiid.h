#pragma once

#include "window_services.h"

// To be called in a catch block at the end of a record command. True: the error is number 91, which has now been told
// with the command's own text, and the program goes on. Any other error has gone to the common report.
[[nodiscard]] bool toldAsInvalidUIID(const char *prompt, MessageBoxes &boxes, ErrorReport &errors,
                                     const char *procedure);
