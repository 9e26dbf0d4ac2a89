#include "shell_fixture.h"

#include "form_refusal.h"
#include "form_tree_widget.h"
#include "message_style.h"

#include <QAction>
#include <QTest>

// What choices in the tree open, by the user and by the component, and what is refused.
class NavigationTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void refusalNamesTheWayOut_data();
    void refusalNamesTheWayOut();
    void groupOpensItsFirstFormAndMarksItself();
    void openFormIsNotBuiltAgain();
    void invalidFormKeepsTheSelectionFromOpening();
    void refusedFormKeepsTheCurrentOne();
    void formThatCannotBeBuiltIsRefusedAndTheProgramGoesOn();
    void changeToForm_data();
    void changeToForm();
    void disabledOpenFormIsLeftForItsGroup();
    void disabledTopLevelFormIsLeftForNodeOne();
    void changeToNetworkRebuildsTheOpenForm();
    void accessLevelDimsButNeverRevivesNodes();
    void accessLevelStaysWithAnInvalidForm();
    void damagedAccessLevelCountsAsHighest_data();
    void damagedAccessLevelCountsAsHighest();
    void ticksFollowTheComponentButNotOnGroups();
    void formCommandsFollowTheOneAllowedValue_data();
    void formCommandsFollowTheOneAllowedValue();
    void enterOpensAndArrowsOnlyMove();

  private:
    static quint32 colourOf(const ShellFixture &shell, const QString &text);
};

quint32 NavigationTest::colourOf(const ShellFixture &shell, const QString &text) {
    const auto *tree = shell.find<QTreeWidget>(QStringLiteral("FormTree"));
    const auto items = tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    return items.isEmpty() ? 0 : items.first()->data(0, FormTreeWidget::kColourRole).toUInt();
}

void NavigationTest::refusalNamesTheWayOut_data() {
    QTest::addColumn<int>("node");
    QTest::addColumn<QString>("text"); // with its placeholders filled
    QTest::newRow("alerts") << 4
                            << QStringLiteral("The Alerts form is only available for Selcall and Two Tone networks. To "
                                              "enable this \r\nform, select one of these as the Signalling Type in the "
                                              "Basic Settings form.");
    QTest::newRow("child of a group names the group")
        << 6
        << QStringLiteral("The DTMF Patch form is unavailable. You can enable this form \r\n by selecting the DTMF "
                          "option from the Specifications form.");
    QTest::newRow("top-level form names itself")
        << 7
        << QStringLiteral("The Channels form is unavailable. You can enable this form \r\n by selecting the Channels "
                          "option from the Specifications form.");
    QTest::newRow("first child of the first group")
        << 3
        << QStringLiteral("The Basic Settings form is unavailable. You can enable this form \r\n by selecting the "
                          "Networks option from the Specifications form.");
}

void NavigationTest::refusalNamesTheWayOut() {
    QFETCH(int, node);
    QFETCH(QString, text);
    CallLog log;
    RecordingTransformer transformer(log);
    TestServices services(&transformer);
    FormTreeWidget tree(nullptr);
    FormNodes nodes(tree, transformer, services.translation, services.errors);
    nodes.UpdateTreeItems(ShellFixture::lists(), QString());
    const FormRefusal refusal = FormRefusal::of(nodes, node, services.translation);
    QCOMPARE(Translation::Fill(refusal.prompt, refusal.parameters.split(u'|')), text);
}

void NavigationTest::groupOpensItsFirstFormAndMarksItself() {
    ShellFixture shell;
    shell.load();
    shell.window->TransformerEvents_ChangeToForm(QStringLiteral("grpNetworks"));
    QCOMPARE(shell.window->LoadedFormTitle(), QStringLiteral("Basic Settings"));
    QCOMPARE(shell.selectedText(), QStringLiteral("Basic Settings"));
}

void NavigationTest::openFormIsNotBuiltAgain() {
    ShellFixture shell;
    shell.load();
    auto *tree = shell.find<FormTreeWidget>(QStringLiteral("FormTree"));
    Q_EMIT tree->NodeChosen();
    QVERIFY(shell.log.linesOf(QStringLiteral("CreateForm")).isEmpty());
}

void NavigationTest::invalidFormKeepsTheSelectionFromOpening() {
    ShellFixture shell;
    shell.load();
    shell.forms.enabler->okToLeave = false;
    shell.window->TransformerEvents_ChangeToForm(QStringLiteral("usrctlChannels"));
    QCOMPARE(shell.takeMainCalls(), QStringList(QStringLiteral("Enabler.OKToLeaveForm()")));
    QCOMPARE(shell.window->LoadedFormTitle(), QStringLiteral("Specifications"));
}

void NavigationTest::refusedFormKeepsTheCurrentOne() {
    ShellFixture shell;
    shell.load();
    shell.transformer.when(QStringLiteral("GetFormAvailable"), QStringLiteral("usrctlChannels")).refuses();
    shell.window->TransformerEvents_ChangeToForm(QStringLiteral("usrctlChannels"));
    QCOMPARE(shell.selectedText(), QStringLiteral("Specifications"));
    shell.window->TransformerEvents_EnableDisableFormItem(QStringLiteral("Channels"), false);
    shell.services.boxes.expect(QStringLiteral("The %0:S form is unavailable. You can enable this form %1:S by "
                                               "selecting the %2:S option from the Specifications form."),
                                MessageAnswer::kOk);
    shell.window->TransformerEvents_ChangeToForm(QStringLiteral("usrctlChannels"));
    QCOMPARE(shell.selectedText(), QStringLiteral("Specifications"));
    QCOMPARE(shell.window->LoadedFormTitle(), QStringLiteral("Specifications"));
    QVERIFY(shell.log.linesOf(QStringLiteral("CreateForm")).isEmpty());
}

void NavigationTest::formThatCannotBeBuiltIsRefusedAndTheProgramGoesOn() {
    ShellFixture shell;
    shell.load();
    shell.forms.missing = QStringLiteral("usrctlChannels");
    shell.services.boxes.expect(QStringLiteral("The %0:S form is not part of this version of the program."),
                                MessageAnswer::kOk);
    shell.window->TransformerEvents_ChangeToForm(QStringLiteral("usrctlChannels"));
    QCOMPARE(shell.window->LoadedFormTitle(), QStringLiteral("Specifications"));
    QCOMPARE(shell.selectedText(), QStringLiteral("Specifications"));
}

void NavigationTest::changeToForm_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("opened"); // "" for nothing
    QTest::newRow("last number") << QStringLiteral("7") << QStringLiteral("Channels");
    QTest::newRow("number of a group") << QStringLiteral("5") << QStringLiteral("DTMF Patch");
    QTest::newRow("number of the selected node") << QStringLiteral("1") << QString();
    QTest::newRow("zero") << QStringLiteral("0") << QString();
    QTest::newRow("one too many") << QStringLiteral("8") << QString();
    QTest::newRow("negative") << QStringLiteral("-1") << QString();
    QTest::newRow("key") << QStringLiteral("usrctlAlerts") << QStringLiteral("Alerts");
    QTest::newRow("selected key") << QStringLiteral("usrctlSpec") << QString();
    QTest::newRow("unknown key") << QStringLiteral("usrctlNone") << QString();
    QTest::newRow("empty") << QString() << QString();
}

void NavigationTest::changeToForm() {
    QFETCH(QString, key);
    QFETCH(QString, opened);
    ShellFixture shell;
    shell.load();
    shell.transformer.raise([&](TransformerEvents &events) { events.TransformerEvents_ChangeToForm(key); });
    QCOMPARE(shell.log.linesOf(QStringLiteral("CreateForm")).isEmpty(), opened.isEmpty());
    QCOMPARE(shell.window->LoadedFormTitle(), opened.isEmpty() ? QStringLiteral("Specifications") : opened);
}

void NavigationTest::disabledOpenFormIsLeftForItsGroup() {
    ShellFixture shell;
    shell.load();
    shell.window->TransformerEvents_ChangeToForm(QStringLiteral("usrctlAlerts"));
    shell.window->TransformerEvents_EnableDisableFormItem(QStringLiteral("Alerts"), false);
    QCOMPARE(shell.window->LoadedFormTitle(), QStringLiteral("Basic Settings"));
    QCOMPARE(colourOf(shell, QStringLiteral("Alerts")), NodeColour::kButtonFace);
}

void NavigationTest::disabledTopLevelFormIsLeftForNodeOne() {
    ShellFixture shell;
    shell.load();
    shell.window->TransformerEvents_ChangeToForm(QStringLiteral("usrctlChannels"));
    shell.window->TransformerEvents_EnableDisableFormItem(QStringLiteral("Channels"), false);
    QCOMPARE(shell.window->LoadedFormTitle(), QStringLiteral("Specifications"));
    shell.window->TransformerEvents_EnableDisableFormItem(QStringLiteral("DTMF"), false);
    QCOMPARE(colourOf(shell, QStringLiteral("DTMF Patch")), NodeColour::kButtonFace);
    shell.window->TransformerEvents_EnableDisableFormItem(QStringLiteral("Nobody"), false);
    QCOMPARE(colourOf(shell, QStringLiteral("Specifications")), NodeColour::kMenuText);
}

void NavigationTest::changeToNetworkRebuildsTheOpenForm() {
    ShellFixture shell;
    shell.load();
    shell.transformer.when(QStringLiteral("GetFormIsDirty")).answers(true);
    shell.window->TransformerEvents_ChangeToNetwork();
    const QStringList calls = shell.takeMainCalls();
    QVERIFY(calls.indexOf(QStringLiteral("SaveForm(A)")) < calls.indexOf(QStringLiteral("CreateForm(usrctlSpec)")));
    QVERIFY(calls.contains(QStringLiteral("SaveForm(A)")));
}

void NavigationTest::accessLevelDimsButNeverRevivesNodes() {
    ShellFixture shell;
    shell.load();
    shell.window->TransformerEvents_EnableDisableFormItem(QStringLiteral("Channels"), false);
    shell.find<QAction>(QStringLiteral("mnuAccessLevelOption(3)"))->trigger();
    QCOMPARE(colourOf(shell, QStringLiteral("Alerts")), NodeColour::kButtonShadow); // level 60 above 40
    QCOMPARE(colourOf(shell, QStringLiteral("Channels")), NodeColour::kButtonFace);
    QVERIFY(shell.log.lines().contains(QStringLiteral("SetAccessLevel(40)")));
    QVERIFY(shell.log.lines().contains(QStringLiteral("SaveSetting(PreviousAccessLevel, 2)")));
    shell.window->TransformerEvents_ChangeToForm(QStringLiteral("usrctlAlerts"));
    QCOMPARE(shell.window->LoadedFormTitle(), QStringLiteral("Alerts"));
    shell.find<QAction>(QStringLiteral("mnuAccessLevelOption(2)"))->trigger();
    QCOMPARE(colourOf(shell, QStringLiteral("Alerts")), NodeColour::kMenuText);
    QCOMPARE(colourOf(shell, QStringLiteral("Channels")), NodeColour::kButtonFace);
}

void NavigationTest::accessLevelStaysWithAnInvalidForm() {
    ShellFixture shell;
    shell.load();
    shell.forms.enabler->valid = false;
    shell.find<QAction>(QStringLiteral("mnuAccessLevelOption(4)"))->trigger();
    QVERIFY(shell.log.linesOf(QStringLiteral("SetAccessLevel")).isEmpty());
    QVERIFY(shell.find<QAction>(QStringLiteral("mnuAccessLevelOption(1)"))->isChecked());
    QVERIFY(!shell.find<QAction>(QStringLiteral("mnuAccessLevelOption(4)"))->isChecked());
    QCOMPARE(shell.takeMainCalls(),
             QStringList({QStringLiteral("Enabler.ForceSaveToCurrentField()"),
                          QStringLiteral("Enabler.OKToLeaveForm()"), QStringLiteral("Enabler.ValidateForm(true)")}));
}

void NavigationTest::damagedAccessLevelCountsAsHighest_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("previous");
    QTest::addColumn<int>("level");
    QTest::newRow("lowest") << QVariant(3) << QVariant(0) << 20;
    QTest::newRow("previous") << QVariant(4) << QVariant(1) << 60;
    QTest::newRow("previous damaged") << QVariant(4) << QVariant(4) << 80;
    QTest::newRow("too high") << QVariant(5) << QVariant(3) << 80;
    QTest::newRow("negative") << QVariant(-1) << QVariant(3) << 80;
    QTest::newRow("no number") << QVariant(QStringLiteral("high")) << QVariant(3) << 80;
    QTest::newRow("number as text") << QVariant(QStringLiteral("2")) << QVariant(0) << 40;
}

void NavigationTest::damagedAccessLevelCountsAsHighest() {
    QFETCH(QVariant, stored);
    QFETCH(QVariant, previous);
    QFETCH(int, level);
    ShellFixture shell;
    shell.transformer.when(QStringLiteral("GetSetting"), QStringLiteral("AccessLevel")).answers(stored);
    shell.transformer.when(QStringLiteral("GetSetting"), QStringLiteral("PreviousAccessLevel")).answers(previous);
    shell.window->Form_Initialize();
    shell.window->Form_Load();
    QCOMPARE(shell.log.linesOf(QStringLiteral("SetAccessLevel")).first(),
             QStringLiteral("SetAccessLevel(%1)").arg(level));
}

void NavigationTest::ticksFollowTheComponentButNotOnGroups() {
    CallLog log;
    ShellFixture shell;
    shell.load();
    shell.transformer.when(QStringLiteral("GetTreeNodeHasData")).answers(true);
    shell.window->TransformerEvents_SetTierNodeGreenTick(false);
    QVERIFY(shell.log.linesOf(QStringLiteral("GetTreeNodeHasData")).isEmpty());
    shell.window->TransformerEvents_SetTierNodeGreenTick(true);
    const QStringList asked = shell.log.linesOf(QStringLiteral("GetTreeNodeHasData"));
    QCOMPARE(asked.size(), 5);
    QVERIFY(!asked.contains(QStringLiteral("GetTreeNodeHasData(grpNetworks)")));
}

void NavigationTest::formCommandsFollowTheOneAllowedValue_data() {
    QTest::addColumn<int>("saveAllowed");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("one") << 1 << true;
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("two") << 2 << false;
    QTest::newRow("minus one") << -1 << false;
}

void NavigationTest::formCommandsFollowTheOneAllowedValue() {
    QFETCH(int, saveAllowed);
    QFETCH(bool, enabled);
    ShellFixture shell;
    shell.load();
    shell.window->TransformerEvents_FieldHasChanged();
    QVERIFY(shell.find<QAction>(QStringLiteral("mnuReject"))->isEnabled());
    shell.transformer.when(QStringLiteral("GetSaveAllowed")).answers(saveAllowed);
    shell.window->TransformerEvents_SetTierNodeGreenTick(false);
    for (const char *command : {"mnuRevertForm", "mnuValidateForm", "mnuAccept", "mnuReject", "Revert", "Reject"})
        QVERIFY2(shell.find<QAction>(QLatin1String(command))->isEnabled() == enabled, command);
}

void NavigationTest::enterOpensAndArrowsOnlyMove() {
    ShellFixture shell;
    shell.load();
    auto *tree = shell.find<FormTreeWidget>(QStringLiteral("FormTree"));
    QTest::keyClick(tree, Qt::Key_Down);
    QTest::keyClick(tree, Qt::Key_Down);
    QCOMPARE(shell.selectedText(), QStringLiteral("Basic Settings"));
    QVERIFY(shell.log.linesOf(QStringLiteral("CreateForm")).isEmpty());
    QTest::keyClick(tree, Qt::Key_Return);
    QCOMPARE(shell.log.linesOf(QStringLiteral("CreateForm")).size(), 1);
    QCOMPARE(tree->focusPolicy(), Qt::StrongFocus);
}

QTEST_MAIN(NavigationTest)
#include "navigation_test.moc"
