#pragma once

#include "tool_session.h"

// How a value is written: as a person reads it, or as it is stored.
enum class ValueForm { Shown, Stored };

// Sets fields through the component from the texts of the command line or of a table. The words of a refusal come back
// instead of going to standard error.
class FieldSetter {
  public:
    explicit FieldSetter(ToolSession &session) : mSession(session) {}

    struct Outcome {
        bool changed = false;
        QString refusal; // "": the field has the value now
    };
    // The record exists. A field that cannot be set is taken for set if it has the value already.
    Outcome set(const FieldDefinition &field, RecordAddress record, const QString &text, ValueForm form);

  private:
    ToolSession &mSession;
};
