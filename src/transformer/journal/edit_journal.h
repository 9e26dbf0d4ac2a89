#pragma once

#include "data_document.h"
#include "journal_file.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <set>
#include <vector>

// What a journal on disk can start from.
class JournalBaseSource {
  public:
    virtual ~JournalBaseSource() = default;
    // Full path of the loaded file; empty when none is.
    [[nodiscard]] virtual QString loadedFile() const = 0;
    // Text of the loaded file while it holds what was last read or saved; empty if it does not (any more).
    [[nodiscard]] virtual QByteArray storedText() const = 0;
    // Text of a data file of the values in memory.
    [[nodiscard]] virtual QByteArray presentText() const = 0;
};

// The one way in for every change of the data. Edits are recorded right after they are made; the journal gives the
// revert of the open form, the unsaved marks and the file from which the work can be recovered after a crash.
class EditJournal {
  public:
    // folder: where journals live; empty keeps none on disk. document and base outlive the journal.
    EditJournal(DataDocument &document, QString folder, const JournalBaseSource &base);
    ~EditJournal();

    // An edit of one tier that has just been made; empty steps are passed over. In the file when this returns.
    void record(TierIndex tier, const Changes &changes);
    // The values of these tiers have been exchanged as a whole (read, import, defaults). dirty: they differ from what
    // is stored in a file or a radio.
    void recordReplacement(const std::vector<TierIndex> &tiers, bool dirty);

    // The open form: what revertForm takes back is what has been recorded since the last of these.
    void startForm();
    // A keystroke that is no edit yet.
    void touchForm() { mFormTouched = true; }
    [[nodiscard]] bool formIsDirty() const { return mFormTouched || mSteps.size() > mFormStart; }
    // Takes back the open form's steps on the tier; answers what was made to do so. The unsaved mark is again what it
    // was; when nothing is unsaved any more the file goes.
    Changes revertForm(TierIndex tier);

    [[nodiscard]] bool isDirty(TierIndex tier) const { return mDirty.contains(tier); }
    [[nodiscard]] bool isDirty() const { return !mDirty.empty(); }
    void setDirty(TierIndex tier) { mDirty.insert(tier); }
    // The tier's values now stand in a radio.
    void tierIsStored(TierIndex tier);
    // All values now stand in a file: no tier is dirty, there is nothing to recover, and a revert goes back to this.
    void allIsStored();

    // The user has been told that the program ends; an edit after it takes that back.
    void exitIsKnown() { mExitKnown = true; }
    // The program ends in good order: a known end leaves no file behind.
    void shutDown();

    // True once after a record could not be written to disk.
    [[nodiscard]] bool takeWriteFailure();
    [[nodiscard]] QString filePath() const;

  private:
    struct Step {
        TierIndex tier;
        Changes changes;
    };
    void append(const QByteArray &line);
    void writeBase(const QByteArray &text);
    void writeEdit(TierIndex tier, const Changes &changes);
    void removeFile();

    DataDocument &mDocument;
    QString mFolder;
    const JournalBaseSource &mBase;
    std::unique_ptr<JournalFile> mFile;
    std::vector<Step> mSteps; // of the open form and before it, since the last replacement or save
    std::size_t mFormStart = 0;
    std::set<TierIndex> mDirty;
    std::set<TierIndex> mDirtyAtFormStart;
    UnknownFields mUnknownAtFormStart;
    bool mFormTouched = false;
    bool mExitKnown = false;
    bool mWriteFailed = false;
    bool mWriteFailureTold = false;
};
