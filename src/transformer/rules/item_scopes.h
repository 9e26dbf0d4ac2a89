#pragma once

#include "named_functions.h"

// The scopes of lists and references; see NamedFunctions for the table of their names. None is never asked about.
namespace ItemScopes {
using NamedFunctions::ScopeItem;
// Everything that is handed to a scope.
struct Query {
    const FieldReader &reader;
    const FieldDefinition &field;
    RecordAddress record;
    ScopeItem item;
};
[[nodiscard]] bool everything(const Query &query);
[[nodiscard]] bool membersOfGroup(const Query &query);
[[nodiscard]] bool membersButPriority1(const Query &query);
[[nodiscard]] bool channelsNotInGroup(const Query &query);
// Targets that the action of the key (the field that resets this one) takes as its parameter.
[[nodiscard]] bool keyParameter(const Query &query);
[[nodiscard]] bool systemsOfSignallingType(const Query &query);
[[nodiscard]] bool pinDirections(const Query &query);
[[nodiscard]] bool pinActions(const Query &query);
[[nodiscard]] bool outputPins(const Query &query);
[[nodiscard]] bool freeControlStatusValues(const Query &query);
// Parent of the rows: the selcall system of the channel's network, 0 without one.
[[nodiscard]] qint32 selcallSystemOfChannel(const FieldReader &reader, RecordAddress channel);
} // namespace ItemScopes
