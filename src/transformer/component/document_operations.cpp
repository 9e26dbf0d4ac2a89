#include "document_operations.h"

#include "data_file_reader.h"
#include "data_file_writer.h"
#include "file_problem.h"
#include "older_version.h"
#include "sealed_text.h"
#include "squirt_file.h"
#include "translation.h"
#include "whole_file.h"

#include <QFileInfo>

#include <utility>

namespace {
const QString kLineBreak = QStringLiteral("\n");
} // namespace

bool DocumentOperations::mayReplace(const QString &fileName) {
    const bool sameFile = QFileInfo(fileName).absoluteFilePath() == mState.fileName;
    return sameFile || !mState.journal.isDirty() ||
           mState.events.askGeneral(
               QStringLiteral("You have made changes that have not been saved to a file or a radio."
                              "%0:S Do you want to continue loading new details, and lose these "
                              "changes?"),
               QStringLiteral("Opening a file"), {kLineBreak});
}

void DocumentOperations::ReadFile(const QString &fileName) {
    if (!mayReplace(fileName))
        return;
    const QString path = QFileInfo(fileName).absoluteFilePath();
    try {
        const QByteArray text = WholeFile::read(path);
        const DataFileReader reader(mState.dictionary, path);
        DataDocument document = reader.read(text);
        const DataFileHeader header = reader.readHeader(text);
        mState.fileName = path;
        mState.fileHash = SealedText::statedHash(text).value_or(QByteArray());
        mState.fileComment = header.comment;
        takeOver(std::move(document), {});
        tellFile(QStringLiteral("Opened"), path);
    } catch (const FileProblem &problem) {
        mState.events.tellError(problem.Prompt, problem.Parameters);
    }
}

void DocumentOperations::tellFile(const QString &action, const QString &path) {
    mState.events.lastAction(action, QFileInfo(path).fileName());
}

void DocumentOperations::takeOver(DataDocument &&document, const std::set<TierIndex> &dirty) {
    mState.document = std::move(document);
    mState.resetAllPositions();
    mState.journal.allIsStored();
    mState.journal.recordReplacement({dirty.begin(), dirty.end()}, true);
    mTiers.raiseChangeToTier();
}

bool DocumentOperations::mayOverwrite(const QString &path) {
    const bool changed =
        path == mState.fileName && QFileInfo::exists(path) && ComponentState::hashOnDisk(path) != mState.fileHash;
    return !changed || mState.events.ask(QStringLiteral("%0:S has been changed by another program since it was opened."
                                                        "%1:SDo you want to replace it?"),
                                         {path, kLineBreak});
}

void DocumentOperations::SaveFile(const QString &fileName, const QString &comment, qint32 version, bool &result) {
    result = false;
    const QString path = QFileInfo(fileName).absoluteFilePath();
    const std::span<const VersionDefinition> versions = mState.dictionary.versions();
    const qint32 present = mState.current().versionLevel();
    const bool known = version >= 1 && version <= qint32(versions.size());
    const qint32 level = known ? versions[std::size_t(version - 1)].level : present;
    if (level > present) {
        mState.events.tell(QStringLiteral("Data of database version %0:S cannot be saved as the newer version %1:S."),
                           {mState.dictionary.versionName(present), mState.dictionary.versionName(level)});
        return;
    }
    const QStringList lost = level < present ? OlderVersion(mState.current(), level).lostFields() : QStringList();
    if (!lost.isEmpty() &&
        !mState.events.ask(
            QStringLiteral("Database version %0:S has no room for these settings, whose values will not be "
                           "stored: %1:S.%2:SDo you want to continue?"),
            {mState.dictionary.versionName(level), Translation::Pieces(lost, QStringLiteral(", ")), kLineBreak}))
        return;
    if (!mayOverwrite(path))
        return;
    try {
        if (QFileInfo(path).suffix().compare(QStringLiteral("sqt"), Qt::CaseInsensitive) == 0) {
            // A copy for a radio: the loaded file and the unsaved marks stay as they are.
            const DataDocument document = atLevel(level);
            WholeFile::replaceWithBackup(path, SquirtFile::write(document.data.current(), mState.callerVersion));
        } else if (level == present) {
            write(mState.document, path, comment);
            mState.journal.allIsStored();
        } else {
            DataDocument older = atLevel(level);
            write(older, path, comment);
            mState.document = std::move(older);
            mState.journal.recordReplacement({}, false);
            mState.journal.allIsStored();
        }
        result = true;
        tellFile(QStringLiteral("Saved"), path);
    } catch (const FileProblem &problem) {
        mState.events.tellError(problem.Prompt, problem.Parameters);
    }
}

void DocumentOperations::write(const DataDocument &document, const QString &path, const QString &comment) {
    const DataFileWriter writer(document);
    const QByteArray text = writer.write(writer.header(mState.callerVersion, comment));
    WholeFile::replaceWithBackup(path, text);
    mState.fileName = path;
    mState.fileHash = SealedText::statedHash(text).value_or(QByteArray());
    mState.fileComment = comment;
}

DataDocument DocumentOperations::atLevel(qint32 level) const {
    DataDocument older = mState.document;
    older.data.replace(OlderVersion(mState.current(), level).reduced());
    return older;
}

std::optional<DataFileHeader> DocumentOperations::GetFileDetails(const QString &fileName) const {
    try {
        return DataFileReader(mState.dictionary, fileName).readHeader(WholeFile::read(fileName));
    } catch (const FileProblem &) {
        return std::nullopt;
    }
}

void DocumentOperations::ReloadDefaults(const QString &tierKey) {
    const TierIndex tier = mState.dictionary.tierByKey(tierKey).value_or(mState.tier());
    mState.document.data.replace(TierData(mState.dictionary, tier));
    mState.document.unknown.forgetTier(tier);
    mState.resetPositions(tier);
    mState.fileName.clear();
    mState.fileHash.clear();
    mState.fileComment.clear();
    mState.journal.recordReplacement({tier}, false);
    mState.events.lastAction(QStringLiteral("New data"), mState.dictionary.tier(tier).caption);
}

void DocumentOperations::ResetDatabase() {
    const TierIndex current = mState.tier();
    mState.document = DataDocument(mState.dictionary);
    mState.document.data.setCurrentTier(current);
    mState.resetAllPositions();
    mState.fileName.clear();
    mState.fileHash.clear();
    mState.journal.allIsStored();
    mState.journal.recordReplacement({}, false);
}

QString DocumentOperations::versionEntry(qint32 index) const {
    const std::span<const VersionDefinition> versions = mState.dictionary.versions();
    if (index < 1 || index > qint32(versions.size()))
        return {};
    return QStringLiteral("%1.Version %2").arg(index).arg(versions[std::size_t(index - 1)].name);
}

QStringList DocumentOperations::GetFileVersionList() const {
    QStringList entries;
    for (qint32 index = 1; index <= qint32(mState.dictionary.versions().size()); ++index)
        entries.append(versionEntry(index));
    return entries;
}

QString DocumentOperations::GetFileVersionName() const {
    const std::span<const VersionDefinition> versions = mState.dictionary.versions();
    for (qint32 index = 1; index <= qint32(versions.size()); ++index) {
        if (versions[std::size_t(index - 1)].level == mState.current().versionLevel())
            return versionEntry(index);
    }
    return {};
}

QString DocumentOperations::GetFileVersionByIndex(qint32 index) const { return versionEntry(index); }
