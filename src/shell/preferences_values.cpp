#include "preferences_values.h"

#include "product_identity.h"
#include "setting.h"
#include "transformer.h"
#include "value_text.h"

#include <algorithm>
#include <array>

namespace {
struct Row {
    const char *key;
    qint32 PreferencesValues::*value;
    qint32 fallback;
};
constexpr Row kPort{"CommPortNumber", &PreferencesValues::CommPortNumber, 1};
constexpr Row kLanguage{"Language", &PreferencesValues::Language, 1};
// Those that are stored behind the port and the address, in this order.
constexpr std::array kRest{
    Row{"TextAlignment", &PreferencesValues::TextAlignment, 1},
    Row{"GeneralDialogs", &PreferencesValues::GeneralDialogs, 1},
    Row{"StartupPosition", &PreferencesValues::StartupPosition, 0},
    Row{"AccessLevel", &PreferencesValues::AccessLevel, 0},
};
const QString kWebsite = QStringLiteral("Website");
constexpr qint32 kSavedPlace = 2;
constexpr qint32 kHighestAccess = 4;
constexpr qint32 kLanguages = 4;

QString keyOf(const Row &row) { return QString::fromLatin1(row.key); }

qint32 within(qint32 value, qint32 lowest, qint32 highest, qint32 fallback) {
    return value < lowest || value > highest ? fallback : value;
}
} // namespace

PreferencesValues PreferencesValues::load(Transformer &transformer) {
    PreferencesValues values;
    const auto read = [&](const Row &row) {
        values.*row.value = Setting::integer(transformer, keyOf(row), row.fallback);
    };
    read(kPort);
    values.Website = ValueText::of(transformer.GetSetting(kWebsite, ProductIdentity::homePage()));
    std::ranges::for_each(kRest, read);
    read(kLanguage);
    values.TextAlignment = values.TextAlignment == 0 ? 0 : 1;
    values.StartupPosition = within(values.StartupPosition, 0, 1, kSavedPlace);
    values.AccessLevel = within(values.AccessLevel, 0, kHighestAccess, 0);
    values.Language = within(values.Language, 1, kLanguages, 1);
    return values;
}

void PreferencesValues::save(Transformer &transformer) const {
    const auto write = [&](const Row &row) { transformer.SaveSetting(keyOf(row), this->*row.value); };
    write(kPort);
    transformer.SaveSetting(kWebsite, Website);
    std::ranges::for_each(kRest, write);
}

void PreferencesValues::saveLanguage(Transformer &transformer) const {
    transformer.SaveSetting(keyOf(kLanguage), Language);
}
