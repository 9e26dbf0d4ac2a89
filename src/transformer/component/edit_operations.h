#pragma once

#include "change_notifier.h"
#include "component_state.h"

#include <QVariant>

// The edits of values: checked, made, kept in the journal, told to the window.
class EditOperations {
  public:
    EditOperations(ComponentState &state, FieldQueries &fields)
        : mState(state), mFields(fields), mNotifier(state, fields) {}

    void SetValue(const QString &uiid, const QVariant &value, qint32 recordNr, bool &ok);
    void SetDataChanged();
    void CopyFieldToTier(const QString &uiid, const QString &tierKey);

  private:
    void setPosition(const RecordStructure &structure, const QVariant &value, bool &ok);
    [[nodiscard]] bool mayBeSet(const FieldDefinition &field, RecordAddress record);
    void accept(const FieldDefinition &field, RecordAddress record, const QVariant &given, const StoredValue &value);
    void tellWriteFailure();

    ComponentState &mState;
    FieldQueries &mFields;
    ChangeNotifier mNotifier;
};
