#include "sim_options.h"

#include <array>

namespace {
constexpr qint64 kMaxSerial = 99999999;
constexpr qint64 kMaxDelay = 10000;

// Takes a value text into the options; false for a value that is not taken.
using Setter = bool (*)(SimOptions &, const QString &);
struct Option {
    const char *name;
    const char *value; // "": a switch
    Setter set;
};

bool whole(const QString &text, qint64 least, qint64 most, qint64 &number) {
    bool ok = false;
    number = text.toLongLong(&ok);
    return ok && number >= least && number <= most;
}

bool probability(const QString &text, double &value) {
    bool ok = false;
    value = text.toDouble(&ok);
    return ok && value >= 0 && value <= 1;
}

bool setSerial(SimOptions &options, const QString &text) {
    qint64 number = 0;
    const bool ok = whole(text, 0, kMaxSerial, number);
    options.serial = quint32(number);
    return ok;
}

bool setBand(SimOptions &options, const QString &text) {
    qint64 number = 0;
    const bool ok = whole(text, 0, 255, number);
    options.band = int(number);
    return ok;
}

bool setVersion(SimOptions &options, const QString &text) {
    qint64 number = 0;
    const bool ok = whole(text, 1, 255, number);
    options.version = int(number);
    return ok;
}

bool setDelay(SimOptions &options, const QString &text) {
    qint64 number = 0;
    const bool ok = whole(text, 0, kMaxDelay, number);
    options.faults.delay = std::chrono::milliseconds(number);
    return ok;
}

bool setSeed(SimOptions &options, const QString &text) {
    qint64 number = 0;
    const bool ok = whole(text, 0, 0xFFFFFFFF, number);
    options.faults.seed = quint32(number);
    return ok;
}

bool setText(QString &place, const QString &text) {
    place = text;
    return !text.isEmpty();
}

constexpr std::array kOptions{
    Option{"--link", "PATH", [](SimOptions &o, const QString &v) { return setText(o.link, v); }},
    Option{"--tier", "KEY", [](SimOptions &o, const QString &v) { return setText(o.tier, v); }},
    Option{"--band", "N", setBand},
    Option{"--serial", "N", setSerial},
    Option{"--version", "1|2", setVersion},
    Option{"--image", "FILE", [](SimOptions &o, const QString &v) { return setText(o.image, v); }},
    Option{"--full-speed", "", [](SimOptions &o, const QString &) { return o.fullSpeed = true; }},
    Option{"--start-speed-only", "", [](SimOptions &o, const QString &) { return o.startSpeedOnly = true; }},
    Option{"--drop", "P", [](SimOptions &o, const QString &v) { return probability(v, o.faults.drop); }},
    Option{"--corrupt", "P", [](SimOptions &o, const QString &v) { return probability(v, o.faults.corrupt); }},
    Option{"--delay", "MS", setDelay},
    Option{"--cut-after", "BYTES",
           [](SimOptions &o, const QString &v) { return whole(v, 0, 1LL << 40, o.faults.cutAfter); }},
    Option{"--seed", "N", setSeed},
};

const Option *optionOf(const QString &name) {
    for (const Option &option : kOptions)
        if (name == QLatin1String(option.name))
            return &option;
    return nullptr;
}
} // namespace

QString SimOptions::usage() {
    QString text = QStringLiteral("usage: kx4600sim");
    for (const Option &option : kOptions) {
        QString part = QLatin1String(option.name);
        if (*option.value != '\0')
            part += QLatin1Char(' ') + QLatin1String(option.value);
        text += option.set == kOptions.front().set ? QLatin1Char(' ') + part : QStringLiteral(" [%1]").arg(part);
    }
    return text;
}

std::optional<SimOptions> SimOptions::parse(const QStringList &arguments, QString &problem) {
    SimOptions options;
    for (qsizetype at = 0; at < arguments.size(); ++at) {
        const Option *option = optionOf(arguments[at]);
        if (option == nullptr) {
            problem = QStringLiteral("unknown option %1").arg(arguments[at]);
            return std::nullopt;
        }
        const bool takesValue = *option->value != '\0';
        const QString value = takesValue ? arguments.value(++at) : QString();
        if (!option->set(options, value)) {
            problem = QStringLiteral("%1 does not take \"%2\"").arg(QLatin1String(option->name), value);
            return std::nullopt;
        }
    }
    if (options.link.isEmpty()) {
        problem = QStringLiteral("--link is missing");
        return std::nullopt;
    }
    return options;
}
