#pragma once

#include "change_notifier.h"
#include "component_state.h"
#include "grid_refresh_queue.h"
#include "record_editor.h"

// Records of repeating structures: added, inserted, repeated, deleted, sorted.
class RecordOperations {
  public:
    RecordOperations(ComponentState &state, FieldQueries &fields)
        : mState(state), mFields(fields), mNotifier(state, fields), mGrids(state) {}

    // uiid: the guide or any other UIID of the structure.
    void AddRecord(const QString &uiid, qint32 &recordNr, bool &ok);
    void InsertRecord(const QString &uiid, qint32 recordNr, bool &ok);
    void RepeatRecord(const QString &uiid, qint32 recordNr, bool &ok);
    void DeleteRecord(const QString &uiid, qint32 recordNr, bool &ok);
    void SortColumn(const QString &uiid, bool ascending);
    void batchEnded() { mGrids.schedule(); }
    void close() { mGrids.close(); }

  private:
    // Keeps and tells what was done, or says why not.
    [[nodiscard]] bool finish(const RecordStructure &structure, const RecordResult &result, const QString &action);

    ComponentState &mState;
    FieldQueries &mFields;
    ChangeNotifier mNotifier;
    GridRefreshQueue mGrids;
};
