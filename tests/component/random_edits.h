#pragma once

#include "component_state.h"
#include "transformer_component.h"

#include <QRandomGenerator>

#include <map>

// A random walk over everything that changes a tier's values through the component's boundary. The same seed on the
// same data makes the same edits.
class RandomEdits {
  public:
    // clipboard: what the component finds there; written before each paste.
    RandomEdits(TransformerComponent &component, quint32 seed, QString &clipboard)
        : mComponent(component), mRandom(seed), mClipboard(clipboard) {}

    void make(int count);
    // How often each kind of edit was accepted.
    [[nodiscard]] const std::map<QString, int> &accepted() const { return mAccepted; }

  private:
    [[nodiscard]] int any(qsizetype bound) { return mRandom.bounded(int(std::max<qsizetype>(bound, 1))); }
    [[nodiscard]] const RecordStructure &anyStructure();
    void setValue();
    void changeRecords();
    void paste();
    void sort();
    [[nodiscard]] QVariant anyValue(const FieldDefinition &field, qint32 record);
    void moveOn();

    TransformerComponent &mComponent;
    QRandomGenerator mRandom;
    QString &mClipboard;
    std::map<QString, int> mAccepted;
};
