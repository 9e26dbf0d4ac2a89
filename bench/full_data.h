#pragma once

#include "transformer_component.h"

// Fills the current tier of a component to its capacity, through the component's own operations: every structure that
// the user may add to has as many records as the tier can hold, channels have frequencies of their own, every scan
// group has its members, and every control status its own status. The result passes the final checks.
class FullData {
  public:
    explicit FullData(TransformerComponent &transformer) : mTransformer(transformer) {}

    // Raises RunTimeError when the component refuses something.
    void fill();

  private:
    void addRecords(const RecordStructure &structure);
    void addUntilFull(const RecordStructure &structure, qint32 parent, qint32 most);
    void setFrequencies();
    void setMembers();
    void setStatuses();
    void set(const QString &uiid, qint32 record, const QVariant &value);
    [[nodiscard]] const RecordStructure &structure(const QString &guide) const;

    TransformerComponent &mTransformer;
};
