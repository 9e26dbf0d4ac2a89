#pragma once

#include <QString>
#include <QStringList>

// The family that a report is printed in: the fixed-pitch font of the locale, else the other one, else windowFont. Only
// a family that the device lists by that very name, in any case, counts as present.
[[nodiscard]] QString reportFont(const QStringList &fonts, bool isChineseLocale, const QString &windowFont);
