#pragma once

#include <QString>

class Transformer;

// The radio models by the names that the component gives them.
namespace RadioModels {
inline const QString kProgrammable = QStringLiteral("KX4600");
[[nodiscard]] bool IsCalibration(const QString &model);
// Model and serial number of the radio that the present data come from, "KX4600 - 12345678"; "" where they come from
// none.
[[nodiscard]] QString RadioName(Transformer &transformer);
} // namespace RadioModels
