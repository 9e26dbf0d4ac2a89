#include "component_listener.h"
#include "journal_file.h"
#include "random_edits.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
struct Window {
    explicit Window(const QString &folder) {
        ComponentPlaces places;
        places.journalFolder = folder;
        component = std::make_unique<TransformerComponent>(places, [this] { return clipboard; });
        component->AddListener(&listener);
        component->ChangeTier(u"Advanced"_s);
    }
    QString clipboard;
    ComponentListener listener;
    std::unique_ptr<TransformerComponent> component;
    // The same walk each time; tells how often each kind of edit was accepted.
    std::map<QString, int> edit(quint32 seed, int count) {
        RandomEdits edits(*component, seed, clipboard);
        edits.make(count);
        return edits.accepted();
    }
};
} // namespace

// Long random runs of edits: reverted, the data is what it was.
class tst_random_edits : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void revertGivesTheStateBefore() {
        const quint32 last = !qEnvironmentVariableIsEmpty("KX_FULL") ? 40 : 3;
        for (quint32 seed = 1; seed <= last; ++seed) {
            QTemporaryDir folder;
            Window window(folder.path());
            window.edit(seed, 200); // so that there is something to change and to delete
            window.component->SaveForm(QString());
            const TierData before = window.component->state().current();
            const std::map<QString, int> accepted = window.edit(seed + 1, 1000);
            for (const auto &[kind, times] : accepted) {
                qInfo("%s: %d", qPrintable(kind), times);
                QVERIFY2(times >= 5, qPrintable(kind));
            }
            QVERIFY(!window.component->state().current().sameValues(before));
            window.component->RevertFormData(u"Advanced"_s);
            QVERIFY(window.component->state().current().sameValues(before));
            QVERIFY(!window.component->GetFormIsDirty());
            QCOMPARE(JournalFile::inFolder(folder.path()).size(), 1); // what was before is still unsaved
        }
    }
};

QTEST_GUILESS_MAIN(tst_random_edits)
#include "tst_random_edits.moc"
