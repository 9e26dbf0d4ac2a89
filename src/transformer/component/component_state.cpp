#include "component_state.h"

#include "data_file_writer.h"
#include "field_defaults.h"
#include "file_problem.h"
#include "refusal.h"
#include "sealed_text.h"
#include "whole_file.h"

ComponentState::ComponentState(const Dictionary &theDictionary, const ComponentPlaces &thePlaces)
    : dictionary(theDictionary), places(thePlaces), document(theDictionary),
      journal(document, thePlaces.journalFolder, *this) {
    for (qint32 place = 0; place < qint32(dictionary.tiers().size()); ++place)
        mPositions.emplace_back(document.data.tier(TierIndex(place)));
}

void ComponentState::resetPositions(TierIndex tier) { positionsOf(tier).reset(document.data.tier(tier)); }

void ComponentState::resetAllPositions() {
    for (qint32 place = 0; place < qint32(dictionary.tiers().size()); ++place)
        resetPositions(TierIndex(place));
}

const FieldDefinition *ComponentState::findField(const QString &uiid) {
    const FieldDefinition *field = dictionary.find(uiid);
    if (field == nullptr)
        raiseNotFound(uiid);
    return field;
}

const RecordStructure *ComponentState::findStructure(const QString &uiid) {
    const std::optional<StructureIndex> index = dictionary.structureOf(uiid);
    if (index)
        return &dictionary.structure(*index);
    raiseNotFound(uiid);
    return nullptr;
}

void ComponentState::raiseNotFound(const QString &uiid) {
    events.raise([&uiid](TransformerEvents &listener) { listener.TransformerEvents_UIIDNotFound(uiid); });
}

RecordAddress ComponentState::address(StructureIndex structure, qint32 recordNr) {
    return positions().address(dictionary, structure, recordNr);
}

bool ComponentState::isInScope(StructureIndex structure, RecordAddress record) {
    return address(structure, record.number).parent == record.parent;
}

void ComponentState::tell(const Refusal &refusal) { events.tell(refusal.prompt, refusal.parameters); }

QByteArray ComponentState::dataFileText(const QString &comment) const {
    const DataFileWriter writer(document);
    return writer.write(writer.header(callerVersion, comment));
}

QByteArray ComponentState::hashOnDisk(const QString &fileName) {
    try {
        return SealedText::statedHash(WholeFile::read(fileName)).value_or(QByteArray());
    } catch (const FileProblem &) {
        return {};
    }
}

QByteArray ComponentState::storedText() const {
    try {
        const QByteArray onDisk = fileName.isEmpty() ? QByteArray() : WholeFile::read(fileName);
        const bool unchanged = !fileHash.isEmpty() && SealedText::statedHash(onDisk) == fileHash;
        return unchanged && SealedText::isIntact(onDisk) ? onDisk : QByteArray();
    } catch (const FileProblem &) {
        return {}; // gone or unreadable by now
    }
}

void ComponentState::tellWriteFailure() {
    if (journal.takeWriteFailure())
        events.tell(QStringLiteral("The edit journal in %0:S cannot be written: until you save, your changes are "
                                   "not protected against a crash. Check that the disk is not full."),
                    {places.journalFolder});
}
