#include "document_doubles.h"
#include "message_style.h"
#include "talk_to_radio.h"

#include <QTest>

namespace {
const QString kFormQuestion = QStringLiteral("This form has outstanding changes.  If you proceed these changes will be "
                                             "lost.  Do you wish to proceed?");
constexpr qint32 kYes = MessageAnswer::kYes;
constexpr qint32 kNo = MessageAnswer::kNo;

struct Case {
    const char *fault;
    const char *command;
    bool formLoaded = true;
    bool formDirty = false;
    bool dataDirty = false;
    qint32 formAnswer = 0;    // of the form's question; 0: it must not come
    qint32 generalAnswer = 0; // of the switchable question; 0: it must not come
    const char *loaded = "";  // the loaded file
    const char *chosen = "";  // in the dialog; "": cancelled
    const char *refuses = ""; // an operation that answers false
    const char *steps = "";   // joined by "; "
};

constexpr const char *kFinish = "shell.SetUIFormTitle(); shell.SetTierNodeGreenTick(true)";
constexpr const char *kFleetFirst = "SaveSetting(MRUNum, 1); SaveSetting(MRU1, ~/fleet.k4p)";
constexpr const char *kFleetFirstOfTwo =
    "SaveSetting(MRUNum, 2); SaveSetting(MRU1, ~/fleet.k4p); SaveSetting(MRU2, /elsewhere.k4p)";

// "FINISH" stands for title and ticks, "FLEET FIRST" for the loaded fleet.k4p as the newest of the recent files.
const Case kCases[] = {
    {.fault = "open: a clean form costs no question",
     .command = "open",
     .chosen = "other.k4p",
     .steps = "shell.RevertForm(); shell.ChangeFormTreeNodes(false, false); ShowLoad(); "
              "SaveSetting(DataDirectory, ~); ReadFile(~/other.k4p, 0, 0, false)"},
    {.fault = "open: without a form nothing is asked and no tree is walked",
     .command = "open",
     .formLoaded = false,
     .formDirty = true,
     .chosen = "other.k4p",
     .steps = "shell.RevertForm(); ShowLoad(); SaveSetting(DataDirectory, ~); ReadFile(~/other.k4p, 0, 0, false)"},
    {.fault = "open: a form that cannot be reverted leaves the tree alone",
     .command = "open",
     .refuses = "shell.RevertForm",
     .steps = "shell.RevertForm(); ShowLoad()"},
    {.fault = "open: the loaded file chosen in the dialog is not read over unsaved data",
     .command = "open",
     .dataDirty = true,
     .generalAnswer = kNo,
     .loaded = "fleet.k4p",
     .chosen = "folder/../fleet.k4p",
     .steps = "shell.RevertForm(); shell.ChangeFormTreeNodes(false, false); ShowLoad(); "
              "SaveSetting(DataDirectory, ~)"},
    {.fault = "recent: another file is read without a dialog",
     .command = "recent other.k4p",
     .loaded = "fleet.k4p",
     .steps = "shell.RevertForm(); shell.ChangeFormTreeNodes(false, false); ReadFile(~/other.k4p, 0, 0, false)"},
    {.fault = "recent: the loaded file is read again after Yes",
     .command = "recent fleet.k4p",
     .dataDirty = true,
     .generalAnswer = kYes,
     .loaded = "fleet.k4p",
     .steps = "shell.RevertForm(); ReadFile(~/fleet.k4p, 0, 0, false); FINISH; FLEET FIRST"},
    {.fault = "recent: a damaged entry without a name opens no dialog", .command = "recent "},
    {.fault = "drop: the tree gets the focus before the form is judged",
     .command = "drop other.k4p",
     .formDirty = true,
     .formAnswer = kNo,
     .steps = "shell.FocusFormTree()"},
    {.fault = "save: Yes writes in place without a dialog",
     .command = "save",
     .generalAnswer = kYes,
     .loaded = "fleet.k4p",
     .steps = "shell.SaveForm(); FinalValidate(); SaveFile(~/fleet.k4p, , 0); FINISH; FLEET FIRST"},
    {.fault = "save: No at replace proposes the model's name, not the loaded one",
     .command = "save",
     .generalAnswer = kNo,
     .loaded = "fleet.k4p",
     .steps = "shell.SaveForm(); FinalValidate(); ShowSave(KX4600.k4p)"},
    {.fault = "save: a file that is gone is written without question or dialog",
     .command = "save",
     .loaded = "gone.k4p",
     .steps = "shell.SaveForm(); FinalValidate(); SaveFile(~/gone.k4p, , 0); FINISH; "
              "SaveSetting(MRUNum, 1); SaveSetting(MRU1, ~/gone.k4p)"},
    {.fault = "save: without a loaded file the dialog opens",
     .command = "save",
     .chosen = "new.k4p",
     .steps = "shell.SaveForm(); FinalValidate(); ShowSave(KX4600.k4p); SaveSetting(DataDirectory, ~); "
              "SaveFile(~/new.k4p, , 0); FINISH"},
    {.fault = "save as: always asks for the name, proposing the loaded one",
     .command = "saveAs",
     .loaded = "fleet.k4p",
     .chosen = "other.k4p",
     .steps = "shell.SaveForm(); FinalValidate(); ShowSave(fleet.k4p); SaveSetting(DataDirectory, ~); "
              "SaveFile(~/other.k4p, , 0); FINISH; FLEET FIRST"},
    {.fault = "squirt: always asks for the name and proposes none",
     .command = "squirt",
     .loaded = "fleet.k4p",
     .chosen = "fleet.sqt",
     .steps = "shell.SaveForm(); FinalValidate(); ShowSave(); SaveSetting(DataDirectory, ~); "
              "SaveFile(~/fleet.sqt, , 0); FINISH; FLEET FIRST"},
    {.fault = "revert: unsaved data is asked about once, not the form too",
     .command = "revert",
     .formDirty = true,
     .dataDirty = true,
     .generalAnswer = kYes,
     .loaded = "fleet.k4p",
     .steps = "shell.RevertForm(); ReadFile(~/fleet.k4p, 0, 0, false); FINISH; FLEET FIRST"},
    {.fault = "revert: a form that cannot be reverted stops the command",
     .command = "revert",
     .loaded = "fleet.k4p",
     .refuses = "shell.RevertForm",
     .steps = "shell.RevertForm()"},
    {.fault = "new: the defaults come after the form has gone",
     .command = "new",
     .steps = "shell.RevertCurrentField(); shell.FocusFormTree(); shell.UnloadCurrentForm(); "
              "shell.SelectFirstFilterTab(); shell.SelectNode(1); shell.SetFormFrameCaption(Reloading); "
              "ReloadDefaults(Standard); shell.ChangeFormTreeNodes(false, false); RefreshFormList(); "
              "shell.SetUIFormTitle()"},
};
} // namespace

Q_DECLARE_METATYPE(const Case *)

class DocumentsCommandsTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void everyCommandInEveryState_data();
    void everyCommandInEveryState();
    void nothingIsLostUnasked_data();
    void nothingIsLostUnasked();
    void questionsToTheLetter_data();
    void questionsToTheLetter();
    void aFailingComponentIsReportedOnce();
    void recentMenuShowsAmpersandsAndNumbers();
};

namespace {
void run(DocumentBench &bench, const QString &command) {
    const QString name = command.section(u' ', 0, 0);
    const QString file = bench.path(command.section(u' ', 1));
    if (name == QStringLiteral("recent")) {
        bench.setSetting(QStringLiteral("MRUNum"), 2);
        bench.setSetting(QStringLiteral("MRU1"), QStringLiteral("/elsewhere.k4p"));
        bench.setSetting(QStringLiteral("MRU2"), file);
        bench.commands.mnuItemsRecent_Click(2);
        return;
    }
    if (name == QStringLiteral("drop")) {
        bench.commands.OpenDropped(file);
        return;
    }
    clsTalkToRadio radio(bench.services.process, bench.shell, bench.services.boxes, bench.services.errors,
                         [&bench](InterrogationType type) {
                             bench.log.add(QStringLiteral("window"), {qint32(type)});
                             return false;
                         });
    using RadioCommand = void (clsTalkToRadio::*)();
    const QHash<QString, RadioCommand> radioCommands{
        {QStringLiteral("interrogate"), &clsTalkToRadio::mnuInterrogateRadio_Click},
        {QStringLiteral("read"), &clsTalkToRadio::mnuRead_Click},
        {QStringLiteral("program"), &clsTalkToRadio::mnuProgram_Click}};
    if (const auto operation = radioCommands.value(name))
        return (radio.*operation)();
    using DocumentCommand = void (clsDocumentCommands::*)();
    const QHash<QString, DocumentCommand> commands{
        {QStringLiteral("new"), &clsDocumentCommands::mnuNew_Click},
        {QStringLiteral("open"), &clsDocumentCommands::mnuOpen_Click},
        {QStringLiteral("save"), &clsDocumentCommands::mnuSave_Click},
        {QStringLiteral("saveAs"), &clsDocumentCommands::mnuSaveAs_Click},
        {QStringLiteral("squirt"), &clsDocumentCommands::mnuSquirt_Click},
        {QStringLiteral("revert"), &clsDocumentCommands::mnuRevertToSaved_Click},
    };
    (bench.commands.*commands.value(name))();
}

void prepare(DocumentBench &bench, const Case &row) {
    const QString refuses = QString::fromLatin1(row.refuses);
    bench.shell.formLoaded = row.formLoaded;
    bench.shell.savesForm = refuses != QStringLiteral("shell.SaveForm");
    bench.shell.revertsForm = refuses != QStringLiteral("shell.RevertForm");
    bench.shell.generalAnswer = row.generalAnswer;
    bench.component.when(QStringLiteral("GetFormIsDirty")).answers(row.formDirty);
    bench.component.when(QStringLiteral("GetDataIsDirty")).answers(row.dataDirty);
    bench.component.when(QStringLiteral("GetFileName")).answers(bench.path(QString::fromLatin1(row.loaded)));
    if (!refuses.isEmpty())
        bench.component.when(refuses).refuses();
    if (row.formAnswer != 0)
        bench.services.boxes.expect(kFormQuestion, row.formAnswer);
    if (*row.chosen != '\0')
        bench.dialogs.answer =
            FileDialogChoice{.fileName = bench.path(QString::fromLatin1(row.chosen)), .filterIndex = 1};
}

QStringList expectedSteps(const Case &row) {
    const bool isRecent = QByteArray(row.command).startsWith("recent");
    QString steps = QString::fromLatin1(row.steps);
    steps.replace(QStringLiteral("FINISH"), QString::fromLatin1(kFinish));
    steps.replace(QStringLiteral("FLEET FIRST"), QString::fromLatin1(isRecent ? kFleetFirstOfTwo : kFleetFirst));
    return steps.split(QStringLiteral("; "), Qt::SkipEmptyParts);
}
} // namespace

void DocumentsCommandsTest::everyCommandInEveryState_data() {
    QTest::addColumn<const Case *>("row");
    for (const Case &row : kCases)
        QTest::newRow(row.fault) << &row;
}

void DocumentsCommandsTest::everyCommandInEveryState() {
    QFETCH(const Case *, row);
    DocumentBench bench;
    prepare(bench, *row);
    run(bench, QString::fromLatin1(row->command));
    QCOMPARE(bench.steps(), expectedSteps(*row));
    QCOMPARE(bench.shell.generalDialogs.size(), row->generalAnswer != 0 ? 1 : 0);
}

namespace {
// What a command does to the form, the data and the disk, and what it asks before.
struct Command {
    const char *name;
    const char *effect; // the call by which it replaces, writes or programs
    const char *formQuestion = "";
    bool asksData = false; // itself; before a read of another file the component asks
    bool savesForm = false;
    bool hasDialog = false;
};
const QByteArray kMayBeLost = "This form has outstanding changes.  If you proceed these changes may be lost.  Do you "
                              "wish to proceed?";
const QByteArray kWillBeLost = kFormQuestion.toLatin1();
const Command kCommands[] = {
    {.name = "new", .effect = "ReloadDefaults", .formQuestion = kWillBeLost, .asksData = true},
    {.name = "open", .effect = "ReadFile", .formQuestion = kWillBeLost, .hasDialog = true},
    {.name = "recent other.k4p", .effect = "ReadFile", .formQuestion = kWillBeLost},
    {.name = "drop other.k4p", .effect = "ReadFile", .formQuestion = kWillBeLost},
    {.name = "drop gone.k4p", .effect = "ReadFile", .formQuestion = kWillBeLost, .asksData = true},
    {.name = "revert", .effect = "ReadFile", .formQuestion = kWillBeLost, .asksData = true},
    {.name = "save", .effect = "SaveFile", .savesForm = true},
    {.name = "saveAs", .effect = "SaveFile", .savesForm = true, .hasDialog = true},
    {.name = "squirt", .effect = "SaveFile", .savesForm = true, .hasDialog = true},
    {.name = "interrogate", .effect = "window"},
    {.name = "read", .effect = "window", .formQuestion = kMayBeLost, .savesForm = true},
    {.name = "program", .effect = "window", .savesForm = true},
};

enum class State { kClean, kDirtyForm, kRefusedText, kUnsavedData, kInvalidData, kFailingDisk };
const std::pair<State, const char *> kStates[] = {{State::kClean, "clean"},
                                                  {State::kDirtyForm, "dirty form"},
                                                  {State::kRefusedText, "refused text"},
                                                  {State::kUnsavedData, "unsaved data"},
                                                  {State::kInvalidData, "invalid data"},
                                                  {State::kFailingDisk, "failing disk"}};

bool asks(const Command &command, State state) {
    return (state == State::kDirtyForm && *command.formQuestion != '\0') ||
           (state == State::kUnsavedData && command.asksData);
}

bool goesOn(const Command &command, State state, qint32 answer) {
    const bool refused = state == State::kRefusedText && command.savesForm;
    const bool invalid = state == State::kInvalidData && QByteArray(command.effect) == "SaveFile";
    return !refused && !invalid && (!asks(command, state) || answer == kYes);
}
} // namespace

Q_DECLARE_METATYPE(const Command *)
Q_DECLARE_METATYPE(State)

// Every command in every state, with each answer and with its dialog confirmed or cancelled.
void DocumentsCommandsTest::nothingIsLostUnasked_data() {
    QTest::addColumn<const Command *>("command");
    QTest::addColumn<State>("state");
    QTest::addColumn<qint32>("answer");
    QTest::addColumn<bool>("confirmed");
    for (const Command &command : kCommands) {
        for (const auto &[state, text] : kStates) {
            for (const qint32 answer : {kYes, kNo, qint32(MessageAnswer::kCancel)}) {
                for (const bool confirmed : {true, false}) {
                    const bool repeats =
                        (answer != kYes && !asks(command, state)) || (!confirmed && !command.hasDialog);
                    if (!repeats)
                        QTest::addRow("%s, %s, answer %d, %s", command.name, text, answer,
                                      confirmed ? "confirmed" : "cancelled")
                            << &command << state << answer << confirmed;
                }
            }
        }
    }
}

void DocumentsCommandsTest::nothingIsLostUnasked() {
    QFETCH(const Command *, command);
    QFETCH(State, state);
    QFETCH(qint32, answer);
    QFETCH(bool, confirmed);
    const QString effect = QString::fromLatin1(command->effect);
    const bool asksForm = asks(*command, state) && state == State::kDirtyForm;
    const bool asksData = asks(*command, state) && state == State::kUnsavedData;
    DocumentBench bench;
    prepare(bench, {.fault = "",
                    .command = command->name,
                    .formDirty = state == State::kDirtyForm,
                    .dataDirty = state == State::kUnsavedData,
                    .generalAnswer = asksData ? answer : 0,
                    .loaded = "gone.k4p",
                    .chosen = confirmed ? "new.k4p" : "",
                    .refuses = state == State::kRefusedText   ? "shell.SaveForm"
                               : state == State::kInvalidData ? "FinalValidate"
                               : state == State::kFailingDisk ? "SaveFile"
                                                              : ""});
    if (asksForm)
        bench.services.boxes.expect(QString::fromLatin1(command->formQuestion), answer);
    run(bench, QString::fromLatin1(command->name));

    const bool acts = goesOn(*command, state, answer) && confirmed;
    const bool writes = effect == QStringLiteral("SaveFile");
    QCOMPARE(bench.log.linesOf(effect).size(), acts ? 1 : 0);
    QCOMPARE(bench.shell.generalDialogs.size(), asksData ? 1 : 0);
    if (!acts || (writes && state == State::kFailingDisk))
        QVERIFY2(bench.log.linesOf(QStringLiteral("shell.SetUIFormTitle")).isEmpty(), "the title claims success");
}

void DocumentsCommandsTest::questionsToTheLetter_data() {
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("question");
    QTest::newRow("replace names the file")
        << QStringLiteral("save")
        << QStringLiteral("Save File [52] ~/fleet.k4p already exists. \n Do you want "
                          "to replace it?");
    QTest::newRow("revert says what is lost")
        << QStringLiteral("revert")
        << QStringLiteral(
               "Reverting data [52] You have made changes that have not been saved to a file or a radio.\n Do "
               "you want to load previously saved data, and lose these changes?");
    QTest::newRow("new says what is lost")
        << QStringLiteral("new")
        << QStringLiteral("Resetting to defaults [36] You have made changes that have not been saved to a file or a "
                          "radio.\n Do you want to continue loading new details, and lose these changes?");
}

void DocumentsCommandsTest::questionsToTheLetter() {
    QFETCH(QString, command);
    QFETCH(QString, question);
    DocumentBench bench;
    bench.shell.generalAnswer = kNo;
    bench.component.when(QStringLiteral("GetDataIsDirty")).answers(true);
    bench.component.when(QStringLiteral("GetFileName")).answers(bench.path(QStringLiteral("fleet.k4p")));
    run(bench, command);
    QCOMPARE(bench.shell.generalDialogs.join(u'#').replace(bench.folder.path(), QStringLiteral("~")), question);
}

void DocumentsCommandsTest::aFailingComponentIsReportedOnce() {
    DocumentBench bench;
    bench.services.errorSink.expectReport();
    bench.component.when(QStringLiteral("GetFileName")).answers(bench.path(QStringLiteral("gone.k4p")));
    bench.component.when(QStringLiteral("SaveFile"))
        .raises(RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("Files"), QStringLiteral("disk on fire")));
    bench.commands.mnuSave_Click();
    QCOMPARE(bench.services.errorSink.reports().size(), 1);
    QVERIFY(bench.services.errorSink.reports().first().contains(QStringLiteral("Iinterrogation_RequestSaveFile")));
    QVERIFY2(!bench.steps().join(u';').contains(QStringLiteral("shell.SetUIFormTitle")),
             "a failed save claimed success");
}

void DocumentsCommandsTest::recentMenuShowsAmpersandsAndNumbers() {
    DocumentBench bench;
    bench.setSetting(QStringLiteral("MRUNum"), 2);
    bench.setSetting(QStringLiteral("MRU1"), QStringLiteral("/a/Taxi & Co.k4p"));
    bench.setSetting(QStringLiteral("MRU2"), QStringLiteral("/b.k4p"));
    bench.commands.InitialiseMRU();
    QCOMPARE(bench.menu.captions, QStringList({QStringLiteral("&1 /a/Taxi && Co.k4p"), QStringLiteral("&2 /b.k4p")}));
}

QTEST_GUILESS_MAIN(DocumentsCommandsTest)
#include "documents_commands_test.moc"
