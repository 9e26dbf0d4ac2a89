#pragma once

#include "component_state.h"

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

// Every tier's values as plain rows of texts, kept beside the component without rules: it changes only by what it is
// told. Where the component alone can know the outcome (a new record's values, a sort, a file), it is told to look.
class PlainModel {
  public:
    explicit PlainModel(ComponentState &state);

    void note(const FieldDefinition &field, RecordAddress record, const QString &value);
    // A record of the current tier came or went; whatever hangs on the structure is looked at anew.
    void insert(StructureIndex structure, RecordAddress record);
    void erase(StructureIndex structure, RecordAddress record);
    // Takes everything over from the component.
    void look();
    // The state that a revert of the form goes back to.
    void commit();
    void revert(TierIndex tier);

    // Of the current tier; "Undefined" for a record that is not there.
    [[nodiscard]] QString value(const FieldDefinition &field, RecordAddress record) const;
    // Where the component's data differs.
    [[nodiscard]] QStringList differences() const;
    // The same text, or the same number in another spelling.
    [[nodiscard]] static bool isSame(const QString &left, const QString &right);

  private:
    using Row = std::map<FieldIndex, QString>;
    using Place = std::pair<StructureIndex, qint32>; // and parent
    using Tables = std::map<Place, std::vector<Row>>;

    [[nodiscard]] static QString read(const TierData &data, const FieldDefinition &field, RecordAddress record);
    [[nodiscard]] Row readRow(const TierData &data, StructureIndex structure, RecordAddress record) const;
    void lookAt(Tables &tables, const TierData &data, StructureIndex structure) const;
    void lookAtRelated(StructureIndex structure);
    void compare(std::size_t tier, const Place &place, const std::vector<Row> &present, QStringList &result) const;
    [[nodiscard]] std::vector<Row> &table(StructureIndex structure, RecordAddress record);

    ComponentState &mState;
    std::vector<Tables> mTiers;
    std::vector<Tables> mCommitted;
};
