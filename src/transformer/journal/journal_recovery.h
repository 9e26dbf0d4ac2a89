#pragma once

#include "data_document.h"
#include "journal_file.h"

#include <QDateTime>
#include <QStringList>

#include <memory>
#include <optional>
#include <set>

// Keys of the lines of a journal file: the first line is a base, each further one an edit.
namespace JournalKeys {
inline const QString kBase = QStringLiteral("base");     // text of a data file
inline const QString kFileName = QStringLiteral("file"); // of the loaded data file
inline const QString kDirty = QStringLiteral("dirty");   // keys of the unsaved tiers
inline const QString kTier = QStringLiteral("tier");     // whose values the edit changed
inline const QString kSteps = QStringLiteral("steps");   // absent: the base has them already
} // namespace JournalKeys

// Work that a window left behind: a crash, a kill or a power cut.
struct RecoveredWork {
    explicit RecoveredWork(const Dictionary &dictionary) : document(dictionary) {}

    DataDocument document;
    QString fileName;    // of the data file it began with; empty for new data
    QByteArray baseHash; // that the text it began with states; the file's own if it began with the file
    std::set<TierIndex> dirty;
    qint32 edits = 0;
    QDateTime lastEdit;                   // local time
    std::unique_ptr<JournalFile> journal; // held until the work is taken over or given up
};

namespace JournalRecovery {
// Work of the journals in folder that no running window holds, the newest first. Journals without any edit are removed
// on the way. One whose base cannot be read is left alone. Of one whose later lines are damaged or do not fit, what
// precedes them is offered.
[[nodiscard]] std::vector<RecoveredWork> find(const Dictionary &dictionary, const QString &folder);
// Nothing if the lines hold no base that can be read.
[[nodiscard]] std::optional<RecoveredWork> replay(const Dictionary &dictionary, const QList<QByteArray> &lines);
} // namespace JournalRecovery
