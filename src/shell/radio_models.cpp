#include "radio_models.h"

#include "string_utilities.h"
#include "transformer.h"
#include "value_text.h"

#include <QStringList>

namespace {
constexpr double kNoSerialNumber = 19000000; // that of a radio that never got one
} // namespace

bool RadioModels::IsCalibration(const QString &model) {
    const QStringList models{QStringLiteral("KX4600 Cal"), QStringLiteral("KX4600 Trigger Base"),
                             QStringLiteral("KX4600 HPM"), QStringLiteral("KX4600 HPM Trigger Base"),
                             QStringLiteral("KX4700 Cal"), QStringLiteral("KX4700 Trigger Base"),
                             QStringLiteral("KX4700 HPM"), QStringLiteral("KX4700 HPM Trigger Base")};
    return models.contains(model);
}

QString RadioModels::RadioName(Transformer &transformer) {
    const QVariant serial = transformer.GetValue(QStringLiteral("SerialNumber"), 0);
    if (ValueText::number(serial).value_or(kNoSerialNumber) == kNoSerialNumber)
        return {};
    return transformer.GetRadioModel() + QStringLiteral(" - ") + TrimBlanks(ValueText::of(serial));
}
