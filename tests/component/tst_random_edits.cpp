#include "component_listener.h"
#include "journal_file.h"
#include "random_edits.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

// Long random runs of edits: reverted, the data is what it was; killed and recovered, it is what it had become.
class tst_random_edits : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void revertGivesTheStateBefore_data() { seeds(); }
    void revertGivesTheStateBefore();
    void recoveryGivesTheStateAfter_data() { seeds(); }
    void recoveryGivesTheStateAfter();

  private:
    static void seeds();
    struct Window {
        explicit Window(const QString &folder);
        QString clipboard;
        ComponentListener listener;
        std::unique_ptr<TransformerComponent> component;
        // The same walk each time; prints how often each kind of edit was accepted.
        std::map<QString, int> edit(quint32 seed, int count);
    };
};

tst_random_edits::Window::Window(const QString &folder) {
    ComponentPlaces places;
    places.journalFolder = folder;
    component = std::make_unique<TransformerComponent>(places, [this] { return clipboard; });
    component->AddListener(&listener);
    component->ChangeTier(QStringLiteral("Advanced"));
}

std::map<QString, int> tst_random_edits::Window::edit(quint32 seed, int count) {
    RandomEdits edits(*component, seed, clipboard);
    edits.make(count);
    return edits.accepted();
}

void tst_random_edits::seeds() {
    QTest::addColumn<quint32>("seed");
    const quint32 last = !qEnvironmentVariableIsEmpty("KX_FULL") ? 40 : 3;
    for (quint32 seed = 1; seed <= last; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void tst_random_edits::revertGivesTheStateBefore() {
    QFETCH(quint32, seed);
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
    window.component->RevertFormData(QStringLiteral("Advanced"));
    QVERIFY(window.component->state().current().sameValues(before));
    QVERIFY(!window.component->GetFormIsDirty());
    QCOMPARE(JournalFile::inFolder(folder.path()).size(), 1); // what was before is still unsaved
}

void tst_random_edits::recoveryGivesTheStateAfter() {
    QFETCH(quint32, seed);
    QTemporaryDir folder;
    const pid_t child = ::fork();
    if (child == 0) {
        Window(folder.path()).edit(seed, 1000);
        ::raise(SIGKILL);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    QVERIFY(WIFSIGNALED(status));
    Window expected{QString()};
    expected.edit(seed, 1000);
    Window next(folder.path());
    next.component->StartUp();
    const ComponentState &state = next.component->state();
    for (qint32 tier = 0; tier < 3; ++tier)
        QVERIFY(state.document.data.tier(TierIndex(tier))
                    .sameValues(expected.component->state().document.data.tier(TierIndex(tier))));
    QVERIFY(next.component->GetDataIsDirty());
}

QTEST_GUILESS_MAIN(tst_random_edits)
#include "tst_random_edits.moc"
