#include "dictionary_checks.h"

#include "run_time_error.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(const QString &what) {
    throw RunTimeError(ErrorNumber::kBadArgument, u"DictionaryLoader"_s, what);
}

using Edges = std::vector<std::vector<FieldIndex>>;

void addReads(const Rule &rule, std::vector<FieldIndex> &reads) {
    if (rule.kind == Rule::Kind::Compare)
        reads.push_back(rule.via.isValid() ? rule.via : rule.field);
    if (rule.via.isValid())
        reads.push_back(rule.field);
    reads.insert(reads.end(), rule.reads.begin(), rule.reads.end());
    for (const Rule &inner : rule.inner)
        addReads(inner, reads);
}

// Depth first; a field met again while it is still open closes a circle.
class CycleSearch {
  public:
    CycleSearch(const Dictionary::Parts &parts, const Edges &edges)
        : mParts(parts), mEdges(edges), mStates(edges.size(), State::New) {}

    void visit(FieldIndex field) {
        State &state = mStates[field.slot()];
        if (state == State::Done)
            return;
        if (state == State::Open)
            refuse(u"%1: depends on itself"_s.arg(mParts.fields[field.slot()].id));
        state = State::Open;
        for (const FieldIndex next : mEdges[field.slot()])
            visit(next);
        mStates[field.slot()] = State::Done;
    }

  private:
    enum class State { New, Open, Done };
    const Dictionary::Parts &mParts;
    const Edges &mEdges;
    std::vector<State> mStates;
};

void searchCycles(const Dictionary::Parts &parts,
                  const std::function<void(const FieldDefinition &, std::vector<FieldIndex> &)> &collect) {
    Edges edges(parts.fields.size());
    for (const FieldDefinition &field : parts.fields)
        collect(field, edges[field.index.slot()]);
    CycleSearch search(parts, edges);
    for (const FieldDefinition &field : parts.fields)
        search.visit(field.index);
}

void claimBits(const FieldDefinition &field, std::vector<FieldIndex> &owners, const Dictionary::Parts &parts) {
    const MemoryPlace &at = *field.at;
    const qint32 first = at.byte * 8 + std::max(at.bit, 0);
    const qint32 count = at.bit >= 0 ? 1 : at.bytes * 8;
    for (qint32 bit = first; bit < first + count; ++bit) {
        FieldIndex &owner = owners[std::size_t(bit)];
        if (owner.isValid())
            refuse(u"%1: at: overlaps \"%2\""_s.arg(field.id, parts.fields[owner.slot()].id));
        owner = field.index;
    }
}

} // namespace

void DictionaryChecks::checkMemory(const Dictionary::Parts &parts) {
    for (const RecordStructure &structure : parts.structures) {
        std::vector<FieldIndex> owners(std::size_t(structure.recordBytes) * 8);
        for (const FieldIndex index : structure.fields) {
            const FieldDefinition &field = parts.fields[index.slot()];
            if (field.at)
                claimBits(field, owners, parts);
        }
    }
}

void DictionaryChecks::checkCycles(const Dictionary::Parts &parts) {
    searchCycles(parts, [](const FieldDefinition &field, std::vector<FieldIndex> &reads) {
        addReads(field.enabledWhen, reads);
    });
    searchCycles(parts, [](const FieldDefinition &field, std::vector<FieldIndex> &sources) {
        for (const FieldIndex source : {field.resetWhenChanges, field.follows}) {
            if (source.isValid())
                sources.push_back(source);
        }
    });
    searchCycles(parts, [](const FieldDefinition &field, std::vector<FieldIndex> &sources) {
        if (field.limitsBy)
            sources.push_back(field.limitsBy->field);
        if (field.defaultBy.field.isValid())
            sources.push_back(field.defaultBy.field);
    });
}

void DictionaryChecks::checkUiids(const Dictionary::Parts &parts) {
    QHash<QString, StructureIndex> owners;
    const auto claim = [&](const QString &uiid, StructureIndex structure) {
        if (uiid.isEmpty())
            return;
        if (owners.contains(uiid) && owners.value(uiid) != structure)
            refuse(u"%1: names two structures"_s.arg(uiid));
        owners.insert(uiid, structure);
    };
    for (const FieldDefinition &field : parts.fields)
        claim(field.id, field.structure);
    for (const RecordStructure &structure : parts.structures) {
        claim(structure.guide, structure.index);
        claim(structure.position, structure.index);
        for (const QString &grid : structure.grids)
            claim(grid, structure.index);
    }
}
