#include "component_places.h"

#include "product_identity.h"
#include "settings_store.h"
#include "translation_dictionary.h"

#include <QDir>
#include <QStandardPaths>

ComponentPlaces ComponentPlaces::ofTool() {
    const QString tag = ProductIdentity::tag();
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    const bool stateGiven = QDir::isAbsolutePath(state);
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {.settingsFile = {},
            .journalFolder = {},
            .stateFolder = (stateGiven ? state : QDir::homePath() + QStringLiteral("/.local/state")) + u'/' + tag,
            .restoreFolder = data + u'/' + tag + QStringLiteral("/restore-points"),
            .dataFolder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)};
}

ComponentPlaces ComponentPlaces::ofUser() {
    ComponentPlaces places = ofTool();
    places.settingsFile = SettingsStore::defaultFileName();
    places.journalFolder = places.stateFolder;
    places.translationFile = TranslationDictionary::StandardFile();
    return places;
}
