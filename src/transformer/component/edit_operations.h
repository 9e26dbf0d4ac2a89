#pragma once

#include "change_notifier.h"
#include "component_state.h"
#include "limit_shift.h"

#include <QVariant>

// The edits of values: checked, made, kept in the journal, told to the window.
class EditOperations {
  public:
    EditOperations(ComponentState &state, FieldQueries &fields)
        : mState(state), mFields(fields), mNotifier(state, fields) {}

    void SetValue(const QString &uiid, const QVariant &value, qint32 recordNr, bool &ok);
    void SetDataChanged();

  private:
    void setPosition(const RecordStructure &structure, const QVariant &value, bool &ok);
    [[nodiscard]] bool mayBeSet(const FieldDefinition &field, RecordAddress record);
    // False when the user does not want the consequences.
    [[nodiscard]] bool accept(const FieldDefinition &field, RecordAddress record, const QVariant &given,
                              const StoredValue &value);
    [[nodiscard]] bool mayShift(const FieldDefinition &field, const std::vector<LimitShift::Place> &places);

    ComponentState &mState;
    FieldQueries &mFields;
    ChangeNotifier mNotifier;
};
