#pragma once

#include "component_state.h"

// Copies a field's value into another tier, as a field dragged onto that tier's button does.
class TierCopy {
  public:
    explicit TierCopy(ComponentState &state) : mState(state) {}

    // A UIID list, and a field whose records have no stored position, stand for whole columns of a grid; any other
    // field for the current record. What has no place there is told in one message.
    void copy(const QString &uiids, const QString &tierKey);

  private:
    struct Target {
        TierIndex index;
        TierData &data;
        Changes changes;
        QStringList refused; // parameters of a message
    };
    void copyField(const FieldDefinition &field, bool wholeColumn, Target &target);
    void copyValues(const FieldDefinition &field, const std::vector<RecordAddress> &records, Target &target);
    void copyIdentities(const FieldDefinition &field, const std::vector<RecordAddress> &records, Target &target);
    static void refuse(const FieldDefinition &field, RecordAddress record, Target &target);
    void tell(const Target &target);

    ComponentState &mState;
};
