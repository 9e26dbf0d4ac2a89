#include "help_file_name.h"

#include <array>

namespace {
struct Row {
    const char *radioModel;
    const char *file;
};
constexpr const char *kCalibration = "kx4kc_en";
constexpr std::array kRows{
    Row{"KX4600", "kx4kp_en"},
    Row{"KX4600 Cal", kCalibration},
    Row{"KX4600 Trigger Base", kCalibration},
    Row{"KX4600 HPM", kCalibration},
    Row{"KX4600 HPM Trigger Base", kCalibration},
    Row{"KX4700 Cal", kCalibration},
    Row{"KX4700 Trigger Base", kCalibration},
    Row{"KX4700 HPM", kCalibration},
    Row{"KX4700 HPM Trigger Base", kCalibration},
    Row{"ZB2500 Rx", "zb2kp_en"},
    Row{"ZB2500 Tx", "zb2kp_en"},
};
} // namespace

QString HelpFileName::of(const QString &radioModel) {
    for (const Row &row : kRows) {
        if (radioModel == QString::fromLatin1(row.radioModel))
            return QString::fromLatin1(row.file);
    }
    return QStringLiteral("zb2kc_en");
}
