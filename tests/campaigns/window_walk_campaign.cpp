#include "common_error_handler.h"
#include "data_form.h"
#include "frm_main.h"
#include "main_program.h"
#include "process_values.h"
#include "walked_component.h"
#include "window_input.h"
#include "window_walk.h"

#include <QApplication>
#include <QClipboard>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

// Random walks of a user through the whole program on the real component.
class WindowWalkCampaign : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void walkLeavesTheProgramSound_data();
    void walkLeavesTheProgramSound();

    void everyKindOfActionTookEffect();

  private:
    static void fill(WalkedComponent &component);
    static QString fault(const MainProgram &program, const ErrorReport &errors, WalkedComponent &component);

    Campaign::Tally mTally; // of all walks
};

void WindowWalkCampaign::walkLeavesTheProgramSound_data() {
    QTest::addColumn<quint32>("seed");
    const auto last = quint32(Campaign::countSanitized(2, 10));
    for (quint32 seed = 1; seed <= last; ++seed)
        QTest::addRow("%u", seed) << seed;
}

// What must hold between two actions of the main window; "" when all does.
QString WindowWalkCampaign::fault(const MainProgram &program, const ErrorReport &errors, WalkedComponent &component) {
    const frmMain &window = program.Window();
    if (errors.HasReported())
        return QStringLiteral("an error was reported");
    if (QApplication::activeModalWidget() != nullptr)
        return QStringLiteral("a window is left");
    if (QGuiApplication::overrideCursor() != nullptr)
        return QStringLiteral("the hourglass is left");
    qsizetype forms = 0;
    for (const QWidget *widget : QApplication::allWidgets())
        forms += qobject_cast<const DataForm *>(widget) != nullptr ? 1 : 0;
    if (forms != 1 || window.Services().process.colEnablers.Count() != 1)
        return QStringLiteral("%1 forms, %2 enablers").arg(forms).arg(window.Services().process.colEnablers.Count());
    if (!component.echoes().isEmpty())
        return QStringLiteral("set from inside its own setting: ") + component.echoes().join(QStringLiteral(", "));
    return component.differences().join(u'\n');
}

// Something of each kind in the fullest tier, so that every form can be opened.
void WindowWalkCampaign::fill(WalkedComponent &component) {
    component.ChangeTier(QStringLiteral("Advanced"));
    for (const char *guide :
         {"NetworkID", "ChannelID_q7r", "ChannelID_q7r", "ChannelID_q7r", "GroupID_q7r", "SignalSystemId_q7r",
          "DTMFNetworkSigSystemID", "T99NetworkID_q7r", "MDC1200SignallingSystemID"}) {
        qint32 record = 0;
        bool added = false;
        component.AddRecord(QString::fromLatin1(guide), QString(), record, added);
        QVERIFY2(added, guide);
    }
}

void WindowWalkCampaign::walkLeavesTheProgramSound() {
    QFETCH(quint32, seed);
    const QTemporaryDir home;
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, (home.path() + u'/' + QLatin1String(name)).toUtf8());
    qputenv("KX4600_PORTS", "1=/nowhere/a|2=/nowhere/b");
    Campaign::Random random(seed);
    HastyBoxes boxes(random);
    HastyFileDialogs fileDialogs(random, home.path());
    ErrorReport errors(false);
    WalkedComponent *component = nullptr;
    const auto make = [&] {
        auto made = std::make_unique<WalkedComponent>(
            ComponentPlaces::ofUser(), [] { return QGuiApplication::clipboard()->text(); }, mTally);
        component = made.get();
        return made;
    };
    MainProgram program(errors, {}, {.fileDialogs = &fileDialogs, .boxes = &boxes, .component = make});
    QVERIFY(program.Start());
    program.Window().resize(1024, 768);
    WindowInput::activate(program.Window());
    WindowWalk walk(program.Window(), random, mTally);
    fill(*component);
    constexpr int kBetweenLooks = 50;
    for (int done = 0; done < Campaign::countSanitized(250, 5000); done += kBetweenLooks) {
        walk.run(kBetweenLooks);
        const QString found = fault(program, errors, *component);
        QVERIFY2(found.isEmpty(), qPrintable(QStringLiteral("after %1: %2\nlast box: %3\n%4")
                                                 .arg(done + kBetweenLooks)
                                                 .arg(found, boxes.last(), walk.lastActions())));
    }
}

// Only in the full count is there room for the rare ones.
void WindowWalkCampaign::everyKindOfActionTookEffect() {
    qInfo("%s", mTally.text().constData());
    const auto kinds = {"values",  "values refused", "record moves", "accepted forms",
                        "reverts", "tiers",          "access levels"};
    const auto rare = {"additions", "deletions", "repeats", "sorts", "sub-forms", "saves", "files", "preferences"};
    for (const char *kind : kinds)
        QVERIFY2(mTally.of(QString::fromLatin1(kind)) >= 5, kind);
    for (const char *kind : rare)
        QVERIFY2(mTally.of(QString::fromLatin1(kind)) >= Campaign::countSanitized(0, 5), kind);
}

int main(int argc, char **argv) {
    qputenv("QTEST_FUNCTION_TIMEOUT", "3600000"); // a long walk takes its time
    const QApplication application(argc, argv);
    WindowWalkCampaign test;
    return QTest::qExec(&test, argc, argv);
}
#include "window_walk_campaign.moc"
