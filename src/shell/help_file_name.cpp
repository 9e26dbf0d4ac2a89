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
constexpr std::array kBaseNames{"kx4kp_en", kCalibration, "kx47p_en", "zb2kc_en", "zb2kp_en"};
const QString kCompiled = QStringLiteral(".chm");
const QString kWindows = QStringLiteral(".hlp");
} // namespace

QString HelpFileName::of(const QString &radioModel) {
    for (const Row &row : kRows) {
        if (radioModel == QString::fromLatin1(row.radioModel))
            return QString::fromLatin1(row.file);
    }
    return QStringLiteral("zb2kc_en");
}

QString HelpFileName::compiled(const QString &radioModel) { return of(radioModel) + kCompiled; }

QString HelpFileName::windows(const QString &radioModel) { return of(radioModel) + kWindows; }

QStringList HelpFileName::all() {
    QStringList names;
    for (const QString &extension : {kWindows, kCompiled}) {
        for (const char *base : kBaseNames)
            names << QString::fromLatin1(base) + extension;
    }
    return names;
}
