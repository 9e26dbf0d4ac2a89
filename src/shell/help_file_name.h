#pragma once

#include <QString>
#include <QStringList>

// The names of the help files by radio model, before translation and without a folder.
namespace HelpFileName {
// "kx4kp_en"
[[nodiscard]] QString of(const QString &radioModel);
// "kx4kp_en.chm", "kx4kp_en.hlp"
[[nodiscard]] QString compiled(const QString &radioModel);
[[nodiscard]] QString windows(const QString &radioModel);
// Every name of the family, those with ".hlp" first.
[[nodiscard]] QStringList all();
} // namespace HelpFileName
