#pragma once

#include "component_places.h"
#include "data_document.h"
#include "edit_journal.h"
#include "event_source.h"
#include "record_positions.h"

#include <QByteArray>
#include <QString>

#include <vector>

struct Refusal;

// What the component's collaborators share: the values of all tiers, the record positions, the loaded file, the journal
// and the event source. Owned by the component; every collaborator holds a reference.
class ComponentState final : private JournalBaseSource {
  public:
    ComponentState(const Dictionary &dictionary, const ComponentPlaces &places);

    const Dictionary &dictionary;
    const ComponentPlaces places;
    EventSource events;
    DataDocument document;
    EditJournal journal;

    // The loaded file: full path, hash that stands in it, and comment. Empty when none is loaded.
    QString fileName;
    QByteArray fileHash;
    QString fileComment;
    QString callerVersion; // of the program around the component, without its tag

    qint32 accessLevel = 80; // 80, 60, 40 or 20
    QString focusedField;    // UIID of the field that the focus entered last
    bool updateUiOnFieldChange = true;
    qint32 batchDepth = 0;
    bool loadFailed = false;

    [[nodiscard]] TierData &current() { return document.data.current(); }
    [[nodiscard]] const TierData &current() const { return document.data.current(); }
    [[nodiscard]] TierIndex tier() const { return document.data.currentTier(); }
    [[nodiscard]] RecordPositions &positions() { return mPositions[tier().slot()]; }
    [[nodiscard]] RecordPositions &positionsOf(TierIndex tier) { return mPositions[tier.slot()]; }
    // Every position of the tier back to its first record.
    void resetPositions(TierIndex tier);
    void resetAllPositions();

    // The field; null after TransformerEvents_UIIDNotFound for what is none.
    [[nodiscard]] const FieldDefinition *findField(const QString &uiid);
    // The structure of a field, guide, position or grid; null after TransformerEvents_UIIDNotFound.
    [[nodiscard]] const RecordStructure *findStructure(const QString &uiid);
    void raiseNotFound(const QString &uiid);
    // The record that a caller's number means in the present scope; it need not exist.
    [[nodiscard]] RecordAddress address(StructureIndex structure, qint32 recordNr);
    // Whether the record is in the present scope, so that its number means something on the boundary.
    [[nodiscard]] bool isInScope(StructureIndex structure, RecordAddress record);
    void tell(const Refusal &refusal);
    // Says once that the journal cannot be written.
    void tellWriteFailure();

    // The text of a data file of the present data. Raises RunTimeError.
    [[nodiscard]] QByteArray dataFileText(const QString &comment) const;
    // The hash that the file on disk states; empty when there is none.
    [[nodiscard]] static QByteArray hashOnDisk(const QString &fileName);

  private:
    [[nodiscard]] QString loadedFile() const override { return fileName; }
    [[nodiscard]] QByteArray storedText() const override;
    [[nodiscard]] QByteArray presentText() const override { return dataFileText(fileComment); }

    std::vector<RecordPositions> mPositions; // by tier
};
