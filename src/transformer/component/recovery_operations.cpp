#include "recovery_operations.h"

#include "data_file_writer.h"
#include "file_problem.h"
#include "journal_recovery.h"
#include "restore_points.h"
#include "value_codec.h"

#include <QFileInfo>

void RecoveryOperations::offer() {
    if (mState.places.journalFolder.isEmpty())
        return;
    for (RecoveredWork &work : JournalRecovery::find(mState.dictionary, mState.places.journalFolder)) {
        if (isTaken(work)) {
            takeOver(work);
            return; // others are offered by the next start
        }
        keepAside(work);
    }
}

bool RecoveryOperations::isTaken(const RecoveredWork &work) {
    const QString name = work.fileName.isEmpty() ? QStringLiteral("new data") : QFileInfo(work.fileName).fileName();
    return mState.events.ask(
        QStringLiteral("The program ended on %0:S without saving your work on %1:S.%2:SDo you want to recover it?"),
        {work.lastEdit.toString(QStringLiteral("dd/MM/yyyy hh:mm:ss")), name, QStringLiteral("\n")});
}

void RecoveryOperations::takeOver(RecoveredWork &work) {
    mState.fileName = work.fileName;
    mState.fileHash = work.baseHash;
    const std::unique_ptr<JournalFile> old = std::move(work.journal);
    // The new journal stands before the old one goes.
    mDocuments.takeOver(std::move(work.document), work.dirty);
    old->remove();
}

void RecoveryOperations::keepAside(const RecoveredWork &work) {
    try {
        const DataFileWriter writer(work.document);
        const RestorePoints points(mState.places.restoreFolder);
        const FieldDefinition *serial = mState.dictionary.find(QStringLiteral("SerialNumber"));
        const QString read = ValueCodec::shown(*serial, work.document.data.current().value(serial->index, {}));
        const QString number = read.isEmpty() ? QStringLiteral("unknown") : read;
        const QString path = points.store(
            number, writer.write(writer.header(mState.callerVersion, QStringLiteral("Work that was not recovered"))));
        work.journal->remove();
        mState.events.tell(QStringLiteral("The work that was not recovered has been kept in %0:S."), {path});
    } catch (const FileProblem &problem) {
        mState.events.tellError(problem.Prompt, problem.Parameters);
    }
}
