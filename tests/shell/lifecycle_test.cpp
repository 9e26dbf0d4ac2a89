#include "shell_fixture.h"

#include "message_style.h"

#include <QAction>
#include <QTest>
#include <QToolButton>

// The exact order of calls into the component and the form, from start-up to the end.
class LifecycleTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void startUpBringsTheFirstTierUpInThePrescribedOrder();
    void recoveredWorkIsNotOverwrittenByTheFirstTier();
    void namedFileIsRead_data();
    void namedFileIsRead();
    void missingComponentEndsTheProcess_data();
    void missingComponentEndsTheProcess();
    void withoutOtherVersionsStartUpPauses();
    void switchedOffDialogsShowNoSplash();
    void emptyTierListIsReportedNotIgnored();
    void openingAFormClosesTheOldOneFirst();
    void dirtyFormIsSavedOnlyWhenBothAgree_data();
    void dirtyFormIsSavedOnlyWhenBothAgree();
    void tierChangeIsRefusedByAnInvalidForm();
    void outOfMemoryWhileAFormIsBuiltIsSurvived();
    void unknownFormIsReportedAndTheNextOneCanOpen();
    void closingAsksOnlyWhenSomethingWouldBeLost_data();
    void closingAsksOnlyWhenSomethingWouldBeLost();
    void terminateEndsTheFormBeforeTheComponent();
};

namespace {
QStringList formCalls(const char *name, const char *text, int node) {
    return {QStringLiteral("CreateForm(%1)").arg(QLatin1String(name)),
            QStringLiteral("Enabler.InitialiseFields(-1)"),
            QStringLiteral("UserControl_Show()"),
            QStringLiteral("SetCurrentFormName(%1)").arg(QLatin1String(text)),
            QStringLiteral("SetCurrentFormTreeNode(%1)").arg(node),
            QStringLiteral("Enabler.ClearWhatsThisHelpIDs()")};
}
} // namespace

void LifecycleTest::startUpBringsTheFirstTierUpInThePrescribedOrder() {
    ShellFixture shell;
    shell.window->Form_Initialize();
    QCOMPARE(shell.takeMainCalls(),
             QStringList({QStringLiteral("GetLoadFailed()"), QStringLiteral("SetCallerVersion(1.02.00.0034|KX4600)"),
                          QStringLiteral("GetLoadFailed()"), QStringLiteral("GetSetting(TextAlignment, 1)"),
                          QStringLiteral("GetSetting(TierTree, 0)")}));
    shell.window->Form_Load();
    QStringList expected{QStringLiteral("GetSetting(AccessLevel, 0)"),
                         QStringLiteral("SetAccessLevel(80)"),
                         QStringLiteral("SaveSetting(PreviousAccessLevel, 0)"),
                         QStringLiteral("GetSetting(Language, 1)"),
                         QStringLiteral("GetSetting(GeneralDialogs, 1)"),
                         QStringLiteral("ShowSplash()"),
                         QStringLiteral("InitialiseDatabase()"),
                         QStringLiteral("StartUp()"),
                         QStringLiteral("GetSquirtAvailable()"),
                         QStringLiteral("GetProgramAsAvailable()"),
                         QStringLiteral("ChangeTier(A)"),
                         QStringLiteral("GetRadioModel()"),
                         QStringLiteral("SaveSetting(Helpfile, kx4kp_en.chm)"),
                         QStringLiteral("GetTreeFilterTabs()"),
                         QStringLiteral("RefreshFormList()"),
                         QStringLiteral("SetCurrentFormName(Specifications)"),
                         QStringLiteral("SetCurrentFormTreeNode(1)"),
                         QStringLiteral("GetFormAvailable(usrctlSpec, Specifications)"),
                         QStringLiteral("GetFormIsDirty()")};
    expected += formCalls("usrctlSpec", "Specifications", 1);
    const QStringList calls = shell.takeMainCalls();
    QCOMPARE(calls.mid(0, expected.size()), expected);
    QVERIFY(calls.indexOf(QStringLiteral("GetLoadFailed()")) > calls.indexOf(QStringLiteral("GetDatabaseVersion()")));
    QVERIFY(calls.last() == QStringLiteral("UnloadSplash()"));
    QCOMPARE(shell.window->LoadedFormTitle(), QStringLiteral("Specifications"));
    QCOMPARE(shell.window->windowTitle(), QStringLiteral("KX4600 Programming Application (1.02.00)"));
    QCOMPARE(shell.window->ProjectName(), QStringLiteral("UI_KX4600"));
    for (const char *hidden : {"mnuDatabase", "mnuMappingsGen", "mnuFindField", "mnuProgramAs"})
        QVERIFY2(!shell.find<QAction>(QLatin1String(hidden))->isVisible(), hidden);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void LifecycleTest::recoveredWorkIsNotOverwrittenByTheFirstTier() {
    ShellFixture shell({QStringLiteral("depot.k4p")});
    shell.transformer.when(QStringLiteral("StartUp")).runs([&] { shell.raiseChangeToTier(QStringLiteral("B")); });
    shell.services.boxes.expect(QStringLiteral("%0:S was not opened, because recovered work has been loaded."),
                                MessageAnswer::kOk);
    shell.window->Form_Initialize();
    shell.window->Form_Load();
    QVERIFY(shell.log.linesOf(QStringLiteral("ChangeTier")).isEmpty());
    QVERIFY(shell.log.linesOf(QStringLiteral("ReadFile")).isEmpty());
    QVERIFY(shell.find<QToolButton>(QStringLiteral("B"))->isChecked());
}

void LifecycleTest::namedFileIsRead_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("read");
    QTest::newRow("upper case extension") << QStringLiteral("a.K4P") << true;
    QTest::newRow("old data") << QStringLiteral("a.dat") << true;
    QTest::newRow("sibling") << QStringLiteral("a.z2c") << true;
    QTest::newRow("squirt file is ignored") << QStringLiteral("a.sqt") << false;
    QTest::newRow("three letters without a point") << QStringLiteral("k4p") << true;
    QTest::newRow("too short") << QStringLiteral("4p") << false;
}

void LifecycleTest::namedFileIsRead() {
    QFETCH(QString, name);
    QFETCH(bool, read);
    ShellFixture shell({name});
    shell.transformer.when(QStringLiteral("ReadFile")).runs([&] { shell.raiseChangeToTier(QStringLiteral("B")); });
    shell.window->Form_Initialize();
    shell.window->Form_Load();
    QCOMPARE(!shell.log.linesOf(QStringLiteral("ReadFile")).isEmpty(), read);
    QCOMPARE(shell.log.linesOf(QStringLiteral("ChangeTier")).isEmpty(), read);
}

void LifecycleTest::missingComponentEndsTheProcess_data() {
    QTest::addColumn<int>("failingCall"); // of GetLoadFailed
    QTest::newRow("at once") << 1;
    QTest::newRow("after the caller's version") << 2;
}

void LifecycleTest::missingComponentEndsTheProcess() {
    QFETCH(int, failingCall);
    ShellFixture shell;
    auto &answer = shell.transformer.when(QStringLiteral("GetLoadFailed"));
    answer.answers(failingCall == 1);
    shell.transformer.when(QStringLiteral("SetCallerVersion")).runs([&] { answer.answers(failingCall == 2); });
    shell.services.boxes.expect(QStringLiteral("The programming application has encountered an error with one or more "
                                               "components.\r\n              Please reinstall the application and "
                                               "restart your computer!"),
                                MessageAnswer::kOk);
    shell.window->Form_Initialize();
    QCOMPARE(shell.log.linesOf(QStringLiteral("EndNow")), QStringList(QStringLiteral("EndNow(1)")));
}

void LifecycleTest::withoutOtherVersionsStartUpPauses() {
    ShellFixture shell;
    shell.transformer.when(QStringLiteral("GetProgramAsAvailable")).answers(false);
    shell.window->Form_Initialize();
    shell.window->Form_Load();
    const QStringList calls = shell.takeMainCalls();
    const qsizetype asked = calls.indexOf(QStringLiteral("GetProgramAsAvailable()"));
    QCOMPARE(calls.mid(asked + 1, 2), QStringList({QStringLiteral("RepaintSplash()"), QStringLiteral("Pause(1000)")}));
}

void LifecycleTest::switchedOffDialogsShowNoSplash() {
    ShellFixture shell;
    shell.transformer.when(QStringLiteral("GetSetting"), QStringLiteral("GeneralDialogs")).answers(QStringLiteral("0"));
    shell.window->Form_Initialize();
    shell.window->Form_Load();
    QVERIFY(shell.log.linesOf(QStringLiteral("ShowSplash")).isEmpty());
}

void LifecycleTest::emptyTierListIsReportedNotIgnored() {
    ShellFixture shell;
    shell.transformer.when(QStringLiteral("InitialiseDatabase")).answers(QString());
    shell.services.errorSink.expectReport();
    shell.window->Form_Initialize();
    shell.window->Form_Load();
    QCOMPARE(shell.services.errorSink.reports(),
             QStringList(QStringLiteral("KX4600 Programming Application: Form_Load\r\nIndex out of bounds")));
}

void LifecycleTest::openingAFormClosesTheOldOneFirst() {
    ShellFixture shell;
    shell.load();
    QVERIFY(shell.window->OpenForm(QStringLiteral("usrctlChannels"), QStringLiteral("Channels"), true));
    QStringList expected{QStringLiteral("GetFormIsDirty()"), QStringLiteral("RevertFormData(A)"),
                         QStringLiteral("Form.Terminate()")};
    expected += formCalls("usrctlChannels", "Channels", 7);
    QCOMPARE(shell.takeMainCalls(), expected);
    QVERIFY(!shell.window->ChangingForms());
    QCOMPARE(shell.selectedText(), QStringLiteral("Channels"));
}

void LifecycleTest::dirtyFormIsSavedOnlyWhenBothAgree_data() {
    QTest::addColumn<bool>("dirty");
    QTest::addColumn<bool>("saveNow");
    QTest::addColumn<QString>("call");
    QTest::newRow("dirty, to be saved") << true << true << QStringLiteral("SaveForm(A)");
    QTest::newRow("dirty, not to be saved") << true << false << QStringLiteral("RevertFormData(A)");
    QTest::newRow("clean") << false << true << QStringLiteral("RevertFormData(A)");
}

void LifecycleTest::dirtyFormIsSavedOnlyWhenBothAgree() {
    QFETCH(bool, dirty);
    QFETCH(bool, saveNow);
    QFETCH(QString, call);
    ShellFixture shell;
    shell.load();
    shell.transformer.when(QStringLiteral("GetFormIsDirty")).answers(dirty);
    QVERIFY(shell.window->OpenForm(QStringLiteral("usrctlChannels"), QStringLiteral("Channels"), saveNow));
    const QStringList calls = shell.takeMainCalls();
    QVERIFY(calls.contains(call));
    if (call.startsWith(QStringLiteral("SaveForm"))) {
        const QStringList expected{
            QStringLiteral("GetFormIsDirty()"), QStringLiteral("Enabler.ForceSaveToCurrentField()"),
            QStringLiteral("Enabler.OKToLeaveForm()"), QStringLiteral("Enabler.ValidateForm(true)"), call};
        QCOMPARE(calls.mid(0, expected.size()), expected);
    }
}

void LifecycleTest::tierChangeIsRefusedByAnInvalidForm() {
    ShellFixture shell;
    shell.load();
    shell.forms.enabler->valid = false;
    shell.find<QToolButton>(QStringLiteral("B"))->click();
    QVERIFY(shell.log.linesOf(QStringLiteral("ChangeTier")).isEmpty());
    QVERIFY(shell.find<QToolButton>(QStringLiteral("A"))->isChecked());
    shell.forms.enabler->valid = true;
    static_cast<void>(shell.log.take());
    shell.find<QAction>(QStringLiteral("mnuItemsModel(2)"))->trigger();
    const QStringList select{QStringLiteral("SetCurrentFormName(Specifications)"),
                             QStringLiteral("SetCurrentFormTreeNode(1)"),
                             QStringLiteral("GetFormAvailable(usrctlSpec, Specifications)"),
                             QStringLiteral("GetFormIsDirty()"),
                             QStringLiteral("RevertFormData(A)"),
                             QStringLiteral("Form.Terminate()")};
    const QStringList expected =
        QStringList{QStringLiteral("Enabler.ForceSaveToCurrentField()"),
                    QStringLiteral("Enabler.OKToLeaveForm()"),
                    QStringLiteral("Enabler.ValidateForm(true)"),
                    QStringLiteral("SaveForm(A)"),
                    QStringLiteral("ChangeTier(B)"),
                    QStringLiteral("GetRadioModel()"),
                    QStringLiteral("SaveSetting(Helpfile, kx4kp_en.chm)"),
                    QStringLiteral("GetTreeFilterTabs()"),
                    QStringLiteral("RefreshFormList()")} +
        select + formCalls("usrctlSpec", "Specifications", 1) +
        QStringList{QStringLiteral("SetAccessLevel(80)"), QStringLiteral("SaveSetting(PreviousAccessLevel, 0)"),
                    QStringLiteral("GetDatabaseVersion()"), QStringLiteral("GetLoadFailed()"),
                    QStringLiteral("GetCurrentFormName()")} +
        select + formCalls("usrctlSpec", "Specifications", 1);
    QCOMPARE(shell.takeMainCalls(), expected);
}

void LifecycleTest::outOfMemoryWhileAFormIsBuiltIsSurvived() {
    ShellFixture shell;
    shell.load();
    shell.forms.error = RunTimeError(ErrorNumber::kOutOfMemory, QString(), QStringLiteral("Out of memory"));
    shell.services.boxes.expect(QStringLiteral("Windows is unable to allocate enough system resources to display the "
                                               "selected screen. Please close one or more applications and try again."),
                                MessageAnswer::kOk);
    QVERIFY(!shell.window->OpenForm(QStringLiteral("usrctlChannels"), QStringLiteral("Channels"), false));
    QVERIFY(!shell.window->ChangingForms());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    shell.forms.error.reset();
    QVERIFY(shell.window->OpenForm(QStringLiteral("usrctlChannels"), QStringLiteral("Channels"), false));
}

void LifecycleTest::unknownFormIsReportedAndTheNextOneCanOpen() {
    ShellFixture shell;
    shell.load();
    shell.services.errorSink.expectReport();
    shell.forms.error = RunTimeError(ErrorNumber::kCollectionKey, QString(), QStringLiteral("No such form"));
    QVERIFY(!shell.window->OpenForm(QStringLiteral("usrctlNone"), QStringLiteral("None"), false));
    QCOMPARE(shell.services.errorSink.reports(),
             QStringList(QStringLiteral("KX4600 Programming Application: OpenForm\r\nNo such form")));
    QVERIFY(!shell.window->ChangingForms());
}

void LifecycleTest::closingAsksOnlyWhenSomethingWouldBeLost_data() {
    QTest::addColumn<bool>("nothingLost");
    QTest::addColumn<bool>("formIsDirty");
    QTest::addColumn<int>("unloadMode");
    QTest::addColumn<int>("answer"); // 0: no question
    QTest::addColumn<bool>("cancelled");
    QTest::newRow("nothing changed") << true << false << 0 << 0 << false;
    QTest::newRow("data changed, yes") << false << false << 0 << 6 << false;
    QTest::newRow("data changed, no") << false << false << 0 << 7 << true;
    QTest::newRow("form changed, closed with Esc") << true << true << 0 << 2 << true;
    QTest::newRow("session ends, no") << false << false << 2 << 7 << true;
    QTest::newRow("closed by code") << false << true << 1 << 0 << false;
}

void LifecycleTest::closingAsksOnlyWhenSomethingWouldBeLost() {
    QFETCH(bool, nothingLost);
    QFETCH(bool, formIsDirty);
    QFETCH(int, unloadMode);
    QFETCH(int, answer);
    QFETCH(bool, cancelled);
    ShellFixture shell;
    shell.load();
    shell.transformer.when(QStringLiteral("ValidateOnExit")).answers(nothingLost);
    shell.transformer.when(QStringLiteral("GetFormIsDirty")).answers(formIsDirty);
    if (answer != 0)
        shell.services.boxes.expect(QStringLiteral("You have made changes that have not been saved to a file %0:S or a "
                                                   "radio.  Do you still want to exit the application?"),
                                    answer);
    bool cancel = false;
    shell.window->Form_QueryUnload(cancel, unloadMode);
    QCOMPARE(cancel, cancelled);
    QCOMPARE(shell.log.linesOf(QStringLiteral("ValidateOnExit")).size(), unloadMode == 1 ? 0 : 1);
    QCOMPARE(shell.log.linesOf(QStringLiteral("SaveSetting")).size(), 5);
}

void LifecycleTest::terminateEndsTheFormBeforeTheComponent() {
    ShellFixture shell;
    shell.load();
    shell.window->Form_Terminate();
    QCOMPARE(shell.takeMainCalls(), QStringList({QStringLiteral("Form.Terminate()"), QStringLiteral("ShutDown()")}));
    QVERIFY(shell.services.process.objTransformer == nullptr);
    QCOMPARE(shell.services.process.colEnablers.Count(), 0);
    shell.transformer.raise([](TransformerEvents &events) { events.TransformerEvents_WriteLine(QStringLiteral("x")); });
    QVERIFY(shell.window->MessageLog().isEmpty());
}

QTEST_MAIN(LifecycleTest)
#include "lifecycle_test.moc"
