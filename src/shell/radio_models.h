#pragma once

#include <QString>

// The radio models by the names that the component gives them.
namespace RadioModels {
inline const QString kProgrammable = QStringLiteral("KX4600");
[[nodiscard]] bool IsCalibration(const QString &model);
} // namespace RadioModels
