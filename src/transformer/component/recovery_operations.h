#pragma once

#include "component_state.h"
#include "document_operations.h"

struct RecoveredWork;

// Work that an earlier window left behind, offered at the start.
class RecoveryOperations {
  public:
    RecoveryOperations(ComponentState &state, DocumentOperations &documents) : mState(state), mDocuments(documents) {}

    // Offers each piece until one is taken. What is declined is kept as a restore point; what could not be kept stays
    // a journal.
    void offer();

  private:
    [[nodiscard]] bool isTaken(const RecoveredWork &work);
    void takeOver(RecoveredWork &work);
    void keepAside(const RecoveredWork &work);

    ComponentState &mState;
    DocumentOperations &mDocuments;
};
