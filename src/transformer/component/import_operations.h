#pragma once

#include "change_notifier.h"
#include "record_import.h"
#include "translation.h"

class SettingsStore;
struct PastedRows;

// Rows of text pasted or dropped on a grid.
class ImportOperations {
  public:
    ImportOperations(ComponentState &state, FieldQueries &fields, const SettingsStore &settings)
        : mState(state), mFields(fields), mSettings(settings), mNotifier(state, fields) {}

    // uiidList: the grid's columns, joined by "|". selectedRecords: record numbers likewise, which the first rows
    // overwrite; the others become new records. A block of several lines fills down from a single selected record, and
    // without one from the stored position, after a question. False when nothing was done.
    bool import(const QString &uiidList, const QString &text, const QString &selectedRecords);

  private:
    struct Grid;
    [[nodiscard]] std::optional<Grid> gridOf(const QString &uiidList);
    void loadLanguage();
    [[nodiscard]] std::optional<std::vector<qint32>> targets(const Grid &grid, const PastedRows &pasted,
                                                             const QString &selectedRecords);
    void finish(const Grid &grid, const RecordImport::Outcome &outcome);
    void tellRefused(const Grid &grid, const PastedRows &pasted, const RecordImport::Outcome &outcome);

    ComponentState &mState;
    FieldQueries &mFields;
    const SettingsStore &mSettings;
    ChangeNotifier mNotifier;
    Translation mTranslation; // of the language that is set
};
