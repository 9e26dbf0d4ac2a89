#include "journal_recovery.h"

#include "change_json.h"
#include "data_file_reader.h"
#include "file_problem.h"
#include "sealed_text.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
// False: the line does not fit what precedes it; nothing of it has been made.
bool replayLine(const QJsonObject &line, RecoveredWork &work) {
    DataSet &data = work.document.data;
    const Dictionary &dictionary = data.dictionary();
    const std::optional<TierIndex> tier = dictionary.tierByKey(line.value(JournalKeys::kTier).toString());
    if (!tier)
        return false;
    try {
        const Changes changes = ChangeJson::fromJson(dictionary, line.value(JournalKeys::kSteps).toArray());
        TierData changed = data.tier(*tier);
        changed.apply(changes);
        data.replace(std::move(changed));
        work.document.unknown.follow(*tier, changes);
    } catch (const RunTimeError &) {
        return false;
    }
    data.setCurrentTier(*tier);
    work.dirty.insert(*tier);
    ++work.edits;
    return true;
}

bool readBase(const QJsonObject &line, RecoveredWork &work) {
    if (!line.value(JournalKeys::kBase).isString())
        return false;
    const Dictionary &dictionary = work.document.data.dictionary();
    work.fileName = line.value(JournalKeys::kFileName).toString();
    for (const auto &key : line.value(JournalKeys::kDirty).toArray()) {
        if (const std::optional<TierIndex> tier = dictionary.tierByKey(key.toString()))
            work.dirty.insert(*tier);
    }
    const QByteArray text = line.value(JournalKeys::kBase).toString().toUtf8();
    work.baseHash = SealedText::statedHash(text).value_or(QByteArray());
    try {
        work.document = DataFileReader(dictionary, work.fileName).read(text);
        return true;
    } catch (const FileProblem &) {
        return false;
    }
}
} // namespace

namespace JournalRecovery {
std::optional<RecoveredWork> replay(const Dictionary &dictionary, const QList<QByteArray> &lines) {
    RecoveredWork work(dictionary);
    if (lines.isEmpty() || !readBase(QJsonDocument::fromJson(lines.first()).object(), work))
        return std::nullopt;
    for (const QByteArray &line : lines.sliced(1)) {
        if (!replayLine(QJsonDocument::fromJson(line).object(), work))
            break;
    }
    return work;
}

std::vector<RecoveredWork> find(const Dictionary &dictionary, const QString &folder) {
    std::vector<RecoveredWork> found;
    for (const QString &path : JournalFile::inFolder(folder)) {
        std::unique_ptr<JournalFile> journal = JournalFile::openAbandoned(path);
        if (!journal)
            continue;
        std::optional<RecoveredWork> work = replay(dictionary, journal->lines());
        if (work && work->dirty.empty()) {
            journal->remove();
            continue;
        }
        if (!work)
            continue;
        work->lastEdit = QFileInfo(path).lastModified();
        work->journal = std::move(journal);
        found.push_back(std::move(*work));
    }
    return found;
}
} // namespace JournalRecovery
