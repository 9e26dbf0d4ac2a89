#include "radio_models.h"

#include <QStringList>

bool RadioModels::IsCalibration(const QString &model) {
    const QStringList models{QStringLiteral("KX4600 Cal"), QStringLiteral("KX4600 Trigger Base"),
                             QStringLiteral("KX4600 HPM"), QStringLiteral("KX4600 HPM Trigger Base"),
                             QStringLiteral("KX4700 Cal"), QStringLiteral("KX4700 Trigger Base"),
                             QStringLiteral("KX4700 HPM"), QStringLiteral("KX4700 HPM Trigger Base")};
    return models.contains(model);
}
