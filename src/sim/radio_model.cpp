#include "radio_model.h"

#include "default_image.h"
#include "wire_frame.h"

namespace {
std::optional<TierIndex> tierOf(const Dictionary &dictionary, const QString &key) {
    if (key.isEmpty())
        return TierIndex(qint32(dictionary.tiers().size()) - 1);
    return dictionary.tierByKey(key);
}

QString tierKeys(const Dictionary &dictionary) {
    QStringList keys;
    for (const TierDefinition &tier : dictionary.tiers())
        keys << tier.key;
    return keys.join(QStringLiteral(", "));
}

std::optional<qint32> bandOf(const Dictionary &dictionary, std::optional<int> asked) {
    const FieldDefinition *field = dictionary.find(QStringLiteral("Band_q7r"));
    if (field == nullptr)
        return asked.value_or(0);
    if (asked && field->itemByValue(*asked) == nullptr)
        return std::nullopt;
    return asked.value_or(field->defaultNumber);
}
} // namespace

std::optional<RadioModel> RadioModel::make(const Dictionary &dictionary, const SimOptions &options, QString &problem) {
    const std::optional<TierIndex> tier = tierOf(dictionary, options.tier);
    if (!tier) {
        problem = QStringLiteral("no tier \"%1\"; there are %2").arg(options.tier, tierKeys(dictionary));
        return std::nullopt;
    }
    const std::optional<qint32> band = bandOf(dictionary, options.band);
    if (!band) {
        problem = QStringLiteral("no band %1").arg(options.band.value_or(0));
        return std::nullopt;
    }
    const MemoryLayout &layout = dictionary.layout();
    RadioModel model;
    model.identity = {.tier = quint8(tier->place()),
                      .band = quint8(*band),
                      .databaseLevel = quint8(options.version.value_or(dictionary.newestLevel())),
                      .layout = quint16(layout.number()),
                      .maxBlock = Wire::kMaxBlock,
                      .serialNumber = options.serial,
                      .imageSize = quint32(layout.imageSize(*tier)),
                      .highSpeed = !options.startSpeedOnly,
                      .hardwareRevision = 3,
                      .softwareMajor = 2,
                      .softwareMinor = 1,
                      .softwareRevision = 7,
                      .productCode = QStringLiteral("KX4600-%1%2").arg(dictionary.tier(*tier).key.front()).arg(*band)};
    model.fresh = DefaultImage(dictionary, *tier, *band, model.identity.databaseLevel).build();
    return model;
}
