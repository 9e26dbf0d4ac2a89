#include "form_catalogue.h"

#include "form_definition_reader.h"
#include "run_time_error.h"

#include <QDir>
#include <QFile>

#include <algorithm>

// Resources of a static library are linked in only when they are named; this cannot stand in a namespace.
static void initialiseResources() { Q_INIT_RESOURCE(formdefs); }

namespace {
const QString kFolder = QStringLiteral(":/formdefs/");
const QString kSuffix = QStringLiteral(".json");
} // namespace

FormCatalogue::FormCatalogue() {
    initialiseResources();
    for (const QString &file : QDir(kFolder).entryList(QDir::Files, QDir::Name))
        mNames.push_back(file.chopped(kSuffix.size()));
}

bool FormCatalogue::contains(const QString &name) const { return mNames.contains(name, Qt::CaseInsensitive); }

const FormDefinition &FormCatalogue::form(const QString &name) {
    if (const auto known = mRead.find(name.toLower()); known != mRead.end())
        return known->second;
    const auto spelt = std::ranges::find_if(
        mNames, [&](const QString &entry) { return entry.compare(name, Qt::CaseInsensitive) == 0; });
    if (spelt == mNames.cend())
        throw RunTimeError(ErrorNumber::kCollectionKey, QStringLiteral("FormCatalogue"),
                           QStringLiteral("There is no form \"%1\"").arg(name));
    const QString fileName = *spelt + kSuffix;
    QFile file(kFolder + fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("FormCatalogue"), file.errorString());
    return mRead.emplace(name.toLower(), FormDefinitionReader(fileName).read(file.readAll())).first->second;
}
