#pragma once

#include "interrogation_type.h"

class ErrorReport;
class QWidget;
class Translation;
struct ProcessValues;

// Runs one radio operation in its modal window and returns when that has closed.
void runRadioOperation(ProcessValues &process, const Translation &translation, ErrorReport &errors,
                       InterrogationType type, QWidget *owner);
