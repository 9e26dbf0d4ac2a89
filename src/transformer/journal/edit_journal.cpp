#include "edit_journal.h"

#include "change_json.h"
#include "journal_recovery.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace {
QByteArray lineOf(const QJsonObject &object) { return QJsonDocument(object).toJson(QJsonDocument::Compact); }
} // namespace

EditJournal::EditJournal(DataDocument &document, QString folder, const JournalBaseSource &base)
    : mDocument(document), mFolder(std::move(folder)), mBase(base) {}

EditJournal::~EditJournal() = default;

void EditJournal::record(TierIndex tier, const Changes &changes) {
    if (changes.empty())
        return;
    mSteps.push_back({tier, changes});
    mDocument.unknown.follow(tier, changes);
    mDirty.insert(tier);
    mExitKnown = false;
    writeEdit(tier, changes);
}

void EditJournal::writeEdit(TierIndex tier, const Changes &changes) {
    if (mFolder.isEmpty())
        return;
    const Dictionary &dictionary = mDocument.data.dictionary();
    QJsonObject line{{JournalKeys::kTier, dictionary.tier(tier).key}};
    bool baseHasEdit = false;
    if (!mFile) {
        const QByteArray stored = mBase.storedText();
        baseHasEdit = stored.isEmpty(); // the values in memory have it already, the loaded file has not
        writeBase(baseHasEdit ? mBase.presentText() : stored);
    }
    if (!baseHasEdit)
        line.insert(JournalKeys::kSteps, ChangeJson::toJson(dictionary, changes));
    append(lineOf(line));
}

void EditJournal::recordReplacement(const std::vector<TierIndex> &tiers, bool dirty) {
    mSteps.clear();
    for (const TierIndex tier : tiers) {
        if (dirty)
            mDirty.insert(tier);
        else
            mDirty.erase(tier);
    }
    mExitKnown = false;
    // The new file stands before the old one goes, so that a kill between them loses nothing.
    const std::unique_ptr<JournalFile> old = std::move(mFile);
    if (!mDirty.empty() && !mFolder.isEmpty())
        writeBase(mBase.presentText());
    if (old)
        old->remove();
    startForm();
}

void EditJournal::startForm() {
    mFormStart = mSteps.size();
    mFormTouched = false;
    mDirtyAtFormStart = mDirty;
    mUnknownAtFormStart = mDocument.unknown;
}

Changes EditJournal::revertForm(TierIndex tier) {
    Changes undone;
    for (std::size_t i = mSteps.size(); i-- > mFormStart;) {
        if (mSteps[i].tier == tier) {
            const Changes back = inverse(mSteps[i].changes);
            undone.insert(undone.end(), back.begin(), back.end());
        }
    }
    const auto ofTier = [tier](const Step &step) { return step.tier == tier; };
    mSteps.erase(std::remove_if(mSteps.begin() + std::ptrdiff_t(mFormStart), mSteps.end(), ofTier), mSteps.end());
    mDocument.data.tier(tier).apply(undone);
    mDocument.unknown = mUnknownAtFormStart;
    if (!mDirtyAtFormStart.contains(tier))
        mDirty.erase(tier);
    mFormTouched = false;
    if (mDirty.empty())
        removeFile(); // nothing is left to recover
    else if (!undone.empty())
        writeEdit(tier, undone);
    return undone;
}

// A revert beyond this point would leave values that differ from the radio's without an unsaved mark.
void EditJournal::tierIsStored(TierIndex tier) {
    mDirty.erase(tier);
    startForm();
}

void EditJournal::allIsStored() {
    mDirty.clear();
    mSteps.clear();
    removeFile();
    startForm();
}

void EditJournal::shutDown() {
    if (mExitKnown)
        removeFile();
    mFile.reset();
}

void EditJournal::removeFile() {
    if (mFile)
        mFile->remove();
    mFile.reset();
}

void EditJournal::writeBase(const QByteArray &text) {
    mFile = JournalFile::create(mFolder);
    QJsonArray dirty;
    for (const TierIndex tier : mDirty)
        dirty.append(mDocument.data.dictionary().tier(tier).key);
    append(lineOf({{JournalKeys::kBase, QString::fromUtf8(text)},
                   {JournalKeys::kFileName, mBase.loadedFile()},
                   {JournalKeys::kDirty, dirty}}));
}

void EditJournal::append(const QByteArray &line) {
    if (!mFile || !mFile->append(line))
        mWriteFailed = true;
}

bool EditJournal::takeWriteFailure() {
    const bool tell = mWriteFailed && !mWriteFailureTold;
    mWriteFailureTold = mWriteFailureTold || mWriteFailed;
    return tell;
}

QString EditJournal::filePath() const { return mFile ? mFile->path() : QString(); }
