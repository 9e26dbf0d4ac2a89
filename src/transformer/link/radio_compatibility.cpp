#include "radio_compatibility.h"

#include "dictionary.h"

RadioCompatibility::RadioCompatibility(const Dictionary &dictionary) : mDictionary(dictionary) {}

void RadioCompatibility::checkReadable(const RadioIdentity &radio) const {
    if (radio.tier >= mDictionary.tiers().size())
        throw LinkFailure(LinkFault::WrongTier, {tierName(radio.tier), QStringLiteral("KX4600")});
    const qint32 newest = mDictionary.newestLevel();
    if (radio.databaseLevel > newest)
        throw LinkFailure(LinkFault::NewerDatabase, {versionName(radio.databaseLevel), versionName(quint8(newest))});
    const MemoryLayout &layout = mDictionary.layout();
    const bool known =
        radio.layout == layout.number() && radio.imageSize == quint32(layout.imageSize(TierIndex(radio.tier)));
    if (!known)
        throw LinkFailure(LinkFault::WrongLayout, {QStringLiteral("%1 (%2)").arg(radio.layout).arg(radio.imageSize),
                                                   QString::number(layout.number())});
}

void RadioCompatibility::checkProgrammable(const RadioIdentity &radio, const Data &data) const {
    if (radio.tier != data.tier)
        throw LinkFailure(LinkFault::WrongTier, {tierName(radio.tier), tierName(data.tier)});
    if (radio.band != data.band)
        throw LinkFailure(LinkFault::WrongBand, {bandName(radio.band), bandName(data.band)});
    checkReadable(radio);
    if (radio.databaseLevel < data.databaseLevel)
        throw LinkFailure(LinkFault::OlderDatabase,
                          {versionName(radio.databaseLevel), versionName(data.databaseLevel)});
}

QString RadioCompatibility::tierName(quint8 tier) const {
    return tier < mDictionary.tiers().size() ? mDictionary.tier(TierIndex(tier)).caption : QString::number(tier);
}

QString RadioCompatibility::bandName(quint8 band) const {
    const FieldDefinition *field = mDictionary.find(QStringLiteral("Band_q7r"));
    const ListItem *item = field == nullptr ? nullptr : field->itemByValue(band);
    return item == nullptr ? QString::number(band) : item->text;
}

QString RadioCompatibility::versionName(quint8 level) const {
    const QString name = mDictionary.versionName(level);
    return name.isEmpty() ? QStringLiteral("level %1").arg(level) : name;
}
