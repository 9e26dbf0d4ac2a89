#pragma once

#include "interrogation_type.h"

class ErrorReport;
class QWidget;
class Translation;
struct ProcessValues;

// Runs one radio operation in its modal window, offers other ports where it reaches no radio, and returns when the
// windows have closed; true if a radio was read.
bool runRadioOperation(ProcessValues &process, const Translation &translation, ErrorReport &errors,
                       InterrogationType type, QWidget *owner);
