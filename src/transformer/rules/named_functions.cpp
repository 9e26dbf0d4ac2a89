#include "named_functions.h"

#include "derived_values.h"
#include "item_scopes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Derived {
    QLatin1StringView name;
    StoredValue (*function)(const FieldReader &, RecordAddress);
};
constexpr Derived kDerived[] = {
    {"tierCaption"_L1, DerivedValues::tierCaption},
    {"signallingTypeText"_L1, DerivedValues::signallingTypeText},
    {"radioIdNumber"_L1, DerivedValues::radioIdNumber},
    {"sequenceText"_L1, DerivedValues::sequenceText},
    {"sequenceText1"_L1, DerivedValues::sequenceTextOf<1>},
    {"sequenceText2"_L1, DerivedValues::sequenceTextOf<2>},
    {"sequenceText3"_L1, DerivedValues::sequenceTextOf<3>},
    {"sequenceText4"_L1, DerivedValues::sequenceTextOf<4>},
    {"sequenceText5"_L1, DerivedValues::sequenceTextOf<5>},
    {"sequenceText6"_L1, DerivedValues::sequenceTextOf<6>},
    {"sequenceText7"_L1, DerivedValues::sequenceTextOf<7>},
};

struct Scope {
    QLatin1StringView name;
    bool (*function)(const ItemScopes::Query &);
    qint32 (*parent)(const FieldReader &, RecordAddress); // null: its targets hang on no other record
};
constexpr Scope kScopes[] = {
    {"membersOfGroup"_L1, ItemScopes::membersOfGroup, nullptr},
    {"membersButPriority1"_L1, ItemScopes::membersButPriority1, nullptr},
    {"channelsNotInGroup"_L1, ItemScopes::channelsNotInGroup, nullptr},
    {"keyParameter"_L1, ItemScopes::keyParameter, nullptr},
    {"systemsOfSignallingType"_L1, ItemScopes::systemsOfSignallingType, nullptr},
    {"pinDirections"_L1, ItemScopes::pinDirections, nullptr},
    {"pinActions"_L1, ItemScopes::pinActions, nullptr},
    {"outputPins"_L1, ItemScopes::outputPins, nullptr},
    {"freeControlStatusValues"_L1, ItemScopes::freeControlStatusValues, nullptr},
    {"selcallSystemOfChannel"_L1, ItemScopes::everything, ItemScopes::selcallSystemOfChannel},
};

template <class Row, std::size_t N>
const Row *rowOf(const Row (&table)[N], const QString &name) {
    const auto *found = std::ranges::find(table, name, &Row::name);
    return found == std::end(table) ? nullptr : found;
}

template <class Row, std::size_t N>
QStringList namesOf(const Row (&table)[N]) {
    QStringList names;
    for (const Row &row : table)
        names.append(row.name);
    return names;
}

} // namespace

StoredValue NamedFunctions::derived(const QString &name, const FieldReader &reader, const FieldDefinition & /*field*/,
                                    RecordAddress record) {
    const Derived *row = rowOf(kDerived, name);
    return row == nullptr ? StoredValue(QString()) : row->function(reader, record);
}

// No rule of the dictionary needs one yet: everything is said by the tables.
bool NamedFunctions::check(const QString & /*name*/, const FieldReader & /*reader*/, RecordAddress /*record*/) {
    return true;
}

bool NamedFunctions::inScope(const QString &name, const FieldReader &reader, const FieldDefinition &field,
                             RecordAddress record, const ScopeItem &item) {
    if (name.isEmpty())
        return true;
    const Scope *row = rowOf(kScopes, name);
    return row == nullptr || row->function({reader, field, record, item});
}

qint32 NamedFunctions::scopeParent(const QString &name, const FieldReader &reader, RecordAddress record) {
    const Scope *row = rowOf(kScopes, name);
    return row == nullptr || row->parent == nullptr ? 0 : row->parent(reader, record);
}

QStringList NamedFunctions::derivedNames() { return namesOf(kDerived); }

QStringList NamedFunctions::checkNames() { return {}; }

QStringList NamedFunctions::scopeNames() { return namesOf(kScopes); }
