#include "tier_operations.h"

#include "field_defaults.h"
#include "run_time_error.h"

#include <algorithm>
#include <utility>

namespace {
const QString kChildPrefix = QStringLiteral("->");
const QString kEveryType = QStringLiteral("All");
const QString kCalibrationForm = QStringLiteral("usrctlCalSpecifications");

// Forms that need a network with tone signalling, and forms that need a selcall system.
const QStringList kToneForms = {QStringLiteral("usrctlAlerts"), QStringLiteral("usrctlNetworkFeatures")};
const QStringList kSelcallForms = {QStringLiteral("usrctlSelcallToneSettings"),
                                   QStringLiteral("usrctlFixedFormatBursts"), QStringLiteral("usrctlFreeFormatKX4600"),
                                   QStringLiteral("usrctlControlStatusKX4600")};
const QStringList kToneSignalling = {QStringLiteral("Selcall"), QStringLiteral("Two Tone")};

bool anyNetworkSignals(const TierData &data) {
    const FieldDefinition *type = data.dictionary().find(QStringLiteral("SignallingType"));
    if (type == nullptr)
        return false;
    return std::ranges::any_of(data.records(type->structure), [&](RecordAddress record) {
        const ListItem *item = type->itemByValue(data.number(*type, record));
        return item != nullptr && kToneSignalling.contains(item->text);
    });
}
} // namespace

QString TierOperations::InitialiseDatabase() const {
    QStringList parts;
    for (const TierDefinition &tier : mState.dictionary.tiers())
        parts << QString() << tier.caption << tier.key;
    return parts.join(u'|');
}

void TierOperations::ChangeTier(const QString &tierKey) {
    const std::optional<TierIndex> tier = mState.dictionary.tierByKey(tierKey);
    if (!tier)
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("ChangeTier"),
                           QStringLiteral("Unknown tier: ") + tierKey);
    mState.document.data.setCurrentTier(*tier);
    mState.journal.startForm();
    raiseChangeToTier();
}

void TierOperations::raiseChangeToTier() {
    const FormTreeLists tree = lists();
    const QString key = mState.dictionary.tier(mState.tier()).key;
    bool shown = false;
    mTold.reset();
    mState.events.raise([&](TransformerEvents &listener) {
        listener.TransformerEvents_ChangeToTier(key, tree.forms, tree.captions, tree.accessLevels, tree.networks,
                                                tree.types, shown);
    });
    if (!mTold) // nobody who built a tree has asked
        RefreshFormList();
}

FormTreeLists TierOperations::lists() const {
    FormTreeLists tree;
    for (const TreeEntry &entry : mState.dictionary.tree(mState.tier())) {
        tree.forms.append(entry.isChild ? kChildPrefix + entry.form : entry.form);
        tree.captions.append(entry.caption);
        tree.accessLevels.insert(entry.caption, lowestAccess(entry));
        tree.networks.insert(entry.caption, 0);
        tree.types.append(kEveryType);
    }
    return tree;
}

qint32 TierOperations::lowestAccess(const TreeEntry &entry) const {
    constexpr qint32 kEverybody = 20;
    const std::span<const FieldIndex> fields = mState.dictionary.fieldsOfForm(entry.form);
    if (fields.empty())
        return kEverybody;
    const auto access = [this](FieldIndex field) { return mState.dictionary.field(field).access; };
    return access(*std::ranges::min_element(fields, {}, access));
}

bool TierOperations::GetTreeNodeHasData(const QString &nodeKey) const {
    return FieldDefaults(mState.current()).formDiffers(nodeKey);
}

bool TierOperations::Availability::of(const QString &form) const {
    return kToneForms.contains(form) ? toneForms : selcallForms || !kSelcallForms.contains(form);
}

TierOperations::Availability TierOperations::availability() const {
    const std::optional<StructureIndex> systems = mState.dictionary.structureByName(QStringLiteral("SelcallSystem"));
    return {.toneForms = anyNetworkSignals(mState.current()),
            .selcallForms = systems && mState.current().recordCount(*systems) > 0};
}

void TierOperations::RefreshFormList() {
    const Availability now = availability();
    mTold = now;
    for (const TreeEntry &entry : mState.dictionary.tree(mState.tier()))
        tellForm(entry, now);
}

void TierOperations::tellChangedForms() {
    const Availability now = availability();
    const Availability before = std::exchange(mTold, now).value_or(now);
    if (now == before)
        return;
    for (const TreeEntry &entry : mState.dictionary.tree(mState.tier())) {
        if (now.of(entry.form) != before.of(entry.form))
            tellForm(entry, now);
    }
}

void TierOperations::tellForm(const TreeEntry &entry, const Availability &availability) {
    const QString name = QString(entry.caption).remove(u'&');
    const bool enable = availability.of(entry.form);
    mState.events.raise(
        [&](TransformerEvents &listener) { listener.TransformerEvents_EnableDisableFormItem(name, enable); });
}

bool TierOperations::GetFormAvailable(const QString &formKey) const {
    if (formKey.compare(kCalibrationForm, Qt::CaseInsensitive) == 0)
        return true;
    const auto isForm = [&](const TreeEntry &entry) {
        return !entry.isGroup && entry.form.compare(formKey, Qt::CaseInsensitive) == 0;
    };
    const std::vector<TreeEntry> tree = mState.dictionary.tree(mState.tier());
    return std::ranges::any_of(tree, isForm);
}
