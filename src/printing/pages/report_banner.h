#pragma once

#include <QString>

class QDateTime;

// The first line of a report: radio model, date and time in the system's short formats, file.
[[nodiscard]] QString reportBanner(const QString &radioModel, const QDateTime &moment, const QString &fileName);
