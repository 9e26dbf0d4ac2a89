#pragma once

#include "line_model.h"

#include <QString>
#include <QStringList>

#include <optional>

// The command line of kx4600sim.
struct SimOptions {
    QString link;
    QString tier;            // "": the fullest tier
    std::optional<int> band; // none: the dictionary's default
    quint32 serial = 46000001;
    std::optional<int> version; // none: the newest
    QString image;              // "": memory only
    bool fullSpeed = false;
    bool startSpeedOnly = false; // the radio cannot step up to 115200 bit/s
    LineFaults faults;

    [[nodiscard]] static QString usage();
    // Nothing for a wrong command line; problem then says what is wrong.
    [[nodiscard]] static std::optional<SimOptions> parse(const QStringList &arguments, QString &problem);
};
