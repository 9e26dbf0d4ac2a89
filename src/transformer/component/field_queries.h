#pragma once

#include "component_state.h"

#include <QVariant>

class Currency;
class XArrayDB;

// What the component answers about fields: texts, limits, lists, values, enabled state. Changes nothing.
class FieldQueries {
  public:
    explicit FieldQueries(ComponentState &state) : mState(state) {}

    [[nodiscard]] QString GetLabel(const QString &uiid);
    [[nodiscard]] QString GetHelpText(const QString &uiid);
    [[nodiscard]] QString GetNavigatorLabel(const QString &uiid);
    [[nodiscard]] QString GetNavigatorRecordName(const QString &uiid);
    [[nodiscard]] QString GetValidationString(const QString &uiid);
    [[nodiscard]] QString GetFieldDescription(const QString &uiid);
    [[nodiscard]] qint32 GetHelpID(const QString &uiid);
    [[nodiscard]] qint32 GetUIWidth(const QString &uiid);
    [[nodiscard]] qint32 GetFieldVersionLevel(const QString &uiid);
    [[nodiscard]] bool GetFieldDisableWhenAbsent(const QString &uiid);
    [[nodiscard]] bool GetFieldEnabled(const QString &uiid, qint32 recordNr);
    [[nodiscard]] qint32 GetMinValue(const QString &uiid);
    [[nodiscard]] qint32 GetMaxValue(const QString &uiid);
    [[nodiscard]] Currency GetStepValue(const QString &uiid);
    [[nodiscard]] QVariant GetValue(const QString &uiid, qint32 recordNr);
    // GetValue of a field that has been found.
    [[nodiscard]] QVariant valueOf(const FieldDefinition &field, qint32 recordNr);
    [[nodiscard]] qint32 GetNumberOfRecords(const QString &uiid);
    [[nodiscard]] QStringList GetDatabaseFieldList() const;
    void FieldGotFocus(const QString &uiid);

  private:
    ComponentState &mState;
};
