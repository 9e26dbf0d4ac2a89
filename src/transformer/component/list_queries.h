#pragma once

#include "component_state.h"
#include "field_queries.h"
#include "item_lists.h"

class XArrayDB;

// The arrays that the component fills: items of combos and ID trackers, rows of grids.
class ListQueries {
  public:
    ListQueries(ComponentState &state, FieldQueries &fields) : mState(state), mFields(fields) {}

    [[nodiscard]] QString GetIsComboIndex(const QString &uiid);
    [[nodiscard]] QString GetGridCellRaw(const QString &uiid);
    [[nodiscard]] bool GetComboItems(const QString &uiid, qint32 recordNr, XArrayDB &array, qint32 &scope);
    void GetIDItems(const QString &uiid, qint32 recordNr, XArrayDB &array);
    void GetGridData(const QString &uiidList, XArrayDB &array, qint32 recordNr, bool &ok);

  private:
    [[nodiscard]] std::vector<FieldItem> itemsOf(const FieldDefinition &field, qint32 recordNr);

    ComponentState &mState;
    FieldQueries &mFields;
};
