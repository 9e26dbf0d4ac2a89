#include "dictionary_loader.h"

#include "dictionary_checks.h"
#include "field_parser.h"
#include "item_list_parser.h"
#include "run_time_error.h"
#include "structure_parser.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

// Resources of a static library are there only once they are asked for. Must stand outside of any namespace.
static void initialiseDictionaryData() { Q_INIT_RESOURCE(kx_dictionary_data); }

namespace {

constexpr auto kTiersFile = "tiers.json"_L1;
constexpr auto kStructuresFile = "structures.json"_L1;
constexpr auto kListsFile = "lists.json"_L1;
constexpr auto kDataFolder = ":/kx4600/dictionary"_L1;

JsonReader readerOf(const DictionaryFile &file) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.text, &error);
    if (!document.isObject())
        throw RunTimeError(ErrorNumber::kBadArgument, u"DictionaryLoader"_s,
                           u"%1: byte %2: %3"_s.arg(file.name).arg(error.offset).arg(error.errorString()));
    return {file.name, u"file"_s, document.object()};
}

const DictionaryFile &fileByName(const std::vector<DictionaryFile> &files, QLatin1StringView name) {
    const auto found = std::ranges::find(files, name, &DictionaryFile::name);
    if (found == files.end())
        throw RunTimeError(ErrorNumber::kBadArgument, u"DictionaryLoader"_s, u"%1: the file is missing"_s.arg(name));
    return *found;
}

void readLists(LoaderNames &names, const DictionaryFile &file) {
    constexpr QLatin1StringView kKeys[] = {"source"_L1, "items"_L1};
    const JsonReader reader = readerOf(file);
    for (const QString &name : reader.keys()) {
        JsonReader list = reader.nested("items"_L1, reader.value(name));
        list.setOwner(name);
        list.allow(kKeys);
        names.lists.insert(name, ItemListParser::read(names, list, list.array("items"_L1)));
    }
}

} // namespace

std::vector<DictionaryFile> DictionaryLoader::compiledInFiles() {
    initialiseDictionaryData();
    std::vector<DictionaryFile> files;
    for (const QString &name : QDir(kDataFolder).entryList(QDir::Files, QDir::Name)) {
        QFile file(QString(kDataFolder) + QLatin1Char('/') + name);
        if (!file.open(QIODevice::ReadOnly))
            throw RunTimeError(ErrorNumber::kBadArgument, u"DictionaryLoader"_s, u"%1: cannot be read"_s.arg(name));
        files.push_back({name, file.readAll()});
    }
    return files;
}

std::unique_ptr<const Dictionary> DictionaryLoader::load(const std::vector<DictionaryFile> &files) {
    LoaderNames names;
    StructureParser::readTiers(names, readerOf(fileByName(files, kTiersFile)));
    StructureParser::readStructures(names, readerOf(fileByName(files, kStructuresFile)));
    const auto lists = std::ranges::find(files, kListsFile, &DictionaryFile::name);
    if (lists != files.end())
        readLists(names, *lists);
    FieldParser fields(names);
    for (const DictionaryFile &file : files) {
        if (file.name != kTiersFile && file.name != kStructuresFile && file.name != kListsFile)
            fields.readFile(readerOf(file));
    }
    fields.resolve();
    DictionaryChecks::checkUiids(names.parts);
    DictionaryChecks::checkMemory(names.parts);
    DictionaryChecks::checkCycles(names.parts);
    return std::make_unique<const Dictionary>(std::move(names.parts));
}

std::unique_ptr<const Dictionary> DictionaryLoader::loadCompiledIn() { return load(compiledInFiles()); }
