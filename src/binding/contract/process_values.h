#pragma once

#include "enabler_collection.h"

#include <QString>

class Transformer;

// The process-wide values of the window side, members of one object that is made in main and fresh in each test.
// (gLanguage is a member of Translation.)
struct ProcessValues {
    Transformer *objTransformer = nullptr; // not owned; null before the component is made and after ShutDown
    EnablerCollection colEnablers;
    QString CurrentEnablerKey;
    bool gblnInitialisingFields = false; // true while fields are filled by code: no filling counts as an edit
};
