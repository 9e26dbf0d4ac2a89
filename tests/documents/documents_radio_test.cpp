#include "document_doubles.h"
#include "download_command.h"
#include "downloader.h"
#include "message_style.h"
#include "radio_port_search.h"
#include "talk_to_radio.h"

#include <QFile>
#include <QTest>

namespace {
struct Case {
    const char *fault;
    InterrogationType type;
    bool formLoaded = true;
    bool formDirty = false;
    bool savesForm = true;
    const char *model = "KX4600";
    const char *refuses = "";
    bool loadFailed = false;
    bool reads = true;
    const char *steps = "";
};

const Case kCases[] = {
    {.fault = "interrogation leaves a dirty form as it is",
     .type = InterrogationType::kInterrogate,
     .formDirty = true,
     .savesForm = false,
     .steps = "window(0)"},
    {.fault = "a read of a clean form asks nothing",
     .type = InterrogationType::kRead,
     .steps = "shell.FocusFormTree(); shell.SaveForm(); window(1); shell.NameRadio()"},
    {.fault = "a read without a form asks nothing",
     .type = InterrogationType::kRead,
     .formLoaded = false,
     .formDirty = true,
     .steps = "shell.FocusFormTree(); shell.SaveForm(); window(1); shell.NameRadio()"},
    {.fault = "a read that failed gives the data no radio's name",
     .type = InterrogationType::kRead,
     .reads = false,
     .steps = "shell.FocusFormTree(); shell.SaveForm(); window(1)"},
    {.fault = "a program run saves the form without a question",
     .type = InterrogationType::kProgram,
     .formDirty = true,
     .steps = "shell.SaveForm(); shell.SetTierNodeGreenTick(true); window(2)"},
    {.fault = "an unknown operation does nothing", .type = InterrogationType(3)},
    {.fault = "a missing component is named",
     .type = InterrogationType::kInterrogate,
     .loadFailed = true,
     .steps = "window(0); shell.FailedToLoadDLL(VornComms/Ttimer1.exe)"},
    {.fault = "calibration: interrogation reloads the form",
     .type = InterrogationType::kInterrogate,
     .model = "KX4600 Cal",
     .steps = "shell.OpenForm(usrctlCalSpecifications, Specifications, true); shell.SelectNode(1); "
              "SetCurrentFormName(USRCTLCALSPECIFICATIONS); window(0)"},
    {.fault = "calibration: a read does not reload the form",
     .type = InterrogationType::kRead,
     .model = "KX4700 HPM Trigger Base",
     .steps = "shell.FocusFormTree(); shell.SaveForm(); "
              "shell.OpenForm(usrctlCalSpecifications, Specifications, false); shell.SelectNode(1); "
              "SetCurrentFormName(USRCTLCALSPECIFICATIONS); window(1); shell.NameRadio()"},
    {.fault = "calibration: a form that is not available is not opened",
     .type = InterrogationType::kProgram,
     .model = "KX4700 Trigger Base",
     .refuses = "GetFormAvailable",
     .steps = "shell.SaveForm(); shell.SetTierNodeGreenTick(true); shell.SelectNode(1); "
              "SetCurrentFormName(USRCTLCALSPECIFICATIONS); window(2)"},
    {.fault = "a sibling model is no calibration model",
     .type = InterrogationType::kInterrogate,
     .model = "ZB2500 Rx",
     .steps = "window(0)"},
};
} // namespace

Q_DECLARE_METATYPE(const Case *)

class DocumentsRadioTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void everyOperationInEveryState_data();
    void everyOperationInEveryState();
    void theCalibrationFormIsAskedForByKeyAndText();
    void noSecondOperationWhileOneRuns();
    void aFailedOperationDoesNotBlockTheNext();
    void aSilentPortIsReplacedOnlyByOneThatAnswers_data();
    void aSilentPortIsReplacedOnlyByOneThatAnswers();
    void theDownloaderIsToldModelAndPort_data();
    void theDownloaderIsToldModelAndPort();
    void theDownloaderIsStartedAndAttachedTo();
};

namespace {
struct RadioBench : DocumentBench {
    std::function<void()> whileShown;
    bool reads = true; // what a read comes to
    clsTalkToRadio radio{services.process, shell, services.boxes, services.errors, [this](InterrogationType type) {
                             log.add(QStringLiteral("window"), {qint32(type)});
                             if (whileShown)
                                 whileShown();
                             return type == InterrogationType::kRead && reads;
                         }};
};
} // namespace

void DocumentsRadioTest::everyOperationInEveryState_data() {
    QTest::addColumn<const Case *>("row");
    for (const Case &row : kCases)
        QTest::newRow(row.fault) << &row;
}

void DocumentsRadioTest::everyOperationInEveryState() {
    QFETCH(const Case *, row);
    RadioBench bench;
    bench.shell.formLoaded = row->formLoaded;
    bench.shell.savesForm = row->savesForm;
    bench.reads = row->reads;
    bench.component.when(QStringLiteral("GetFormIsDirty")).answers(row->formDirty);
    bench.component.when(QStringLiteral("GetRadioModel")).answers(QString::fromLatin1(row->model));
    bench.component.when(QStringLiteral("GetLoadFailed")).answers(row->loadFailed);
    if (*row->refuses != '\0')
        bench.component.when(QString::fromLatin1(row->refuses)).refuses();
    bench.radio.TalkToRadio(row->type);
    QCOMPARE(bench.steps().join(QStringLiteral("; ")), QString::fromLatin1(row->steps));
}

void DocumentsRadioTest::theCalibrationFormIsAskedForByKeyAndText() {
    RadioBench bench;
    bench.component.when(QStringLiteral("GetRadioModel")).answers(QStringLiteral("KX4600 HPM"));
    bench.radio.mnuInterrogateRadio_Click();
    QCOMPARE(bench.log.linesOf(QStringLiteral("GetFormAvailable")),
             QStringList(QStringLiteral("GetFormAvailable(USRCTLCALSPECIFICATIONS, node 1)")));
}

void DocumentsRadioTest::noSecondOperationWhileOneRuns() {
    RadioBench bench;
    bench.whileShown = [&bench] {
        bench.radio.mnuProgram_Click();
        bench.radio.mnuRead_Click();
    };
    bench.radio.mnuInterrogateRadio_Click();
    QCOMPARE(bench.steps(), QStringList(QStringLiteral("window(0)")));
}

void DocumentsRadioTest::aFailedOperationDoesNotBlockTheNext() {
    RadioBench bench;
    bench.services.errorSink.expectReport();
    bench.whileShown = [] { throw RunTimeError(ErrorNumber::kBadArgument, QString(), QStringLiteral("broken")); };
    bench.radio.mnuInterrogateRadio_Click();
    QCOMPARE(bench.services.errorSink.reports().size(), 1);
    bench.whileShown = nullptr;
    bench.radio.mnuInterrogateRadio_Click();
    QCOMPARE(bench.log.linesOf(QStringLiteral("window")).size(), 2);
}

void DocumentsRadioTest::aSilentPortIsReplacedOnlyByOneThatAnswers_data() {
    QTest::addColumn<QString>("radioOn"); // ports with a radio
    QTest::addColumn<QList<int>>("choices");
    QTest::addColumn<QString>("steps");
    QTest::newRow("the stored port answers") << QStringLiteral("3") << QList<int>() << QStringLiteral("read 3");
    QTest::newRow("nothing is chosen") << QString() << QList<int>{0} << QStringLiteral("read 3; silent 3 choose 0");
    QTest::newRow("the chosen port answers and stays stored")
        << QStringLiteral("101") << QList<int>{101} << QStringLiteral("read 3; silent 3 choose 101; ask 101");
    QTest::newRow("two silent ports are named one after the other")
        << QStringLiteral("102") << QList<int>{101, 102}
        << QStringLiteral("read 3; silent 3 choose 101; ask 101; silent 101 choose 102; ask 102");
    QTest::newRow("a silent chosen port is not stored")
        << QString() << QList<int>{101, 0}
        << QStringLiteral("read 3; silent 3 choose 101; ask 101; silent 101 choose 0");
}

void DocumentsRadioTest::aSilentPortIsReplacedOnlyByOneThatAnswers() {
    QFETCH(QString, radioOn);
    QFETCH(QList<int>, choices);
    QFETCH(QString, steps);
    DocumentBench bench;
    bench.setSetting(QStringLiteral("CommPortNumber"), 3);
    const auto storedPort = [&] { return bench.component.GetSetting(QStringLiteral("CommPortNumber"), 1).toString(); };
    QStringList seen;
    const auto window = [&](InterrogationType type) {
        const QString port = storedPort();
        seen << (type == InterrogationType::kRead ? QStringLiteral("read ") : QStringLiteral("ask ")) + port;
        return port == radioOn ? RadioContact{.answered = true, .noRadio = {}}
                               : RadioContact{.answered = false, .noRadio = QStringLiteral("silent ") + port};
    };
    const auto choose = [&](const QString &problem, int tried) {
        const int choice = choices.takeFirst();
        seen << QStringLiteral("%1 choose %2").arg(problem).arg(choice);
        if (!problem.endsWith(QString::number(tried)))
            failTest(QStringLiteral("the port that was tried is not marked"));
        return choice;
    };
    RadioPortSearch(bench.services.process, window, choose).Run(InterrogationType::kRead);
    QCOMPARE(seen.join(QStringLiteral("; ")), steps);
    QCOMPARE(storedPort(), radioOn.isEmpty() ? QStringLiteral("3") : radioOn);
}

namespace {
struct FakeDownloader final : DownloadManager {
    QString reachedBy; // "", "attach" or "create"
    QStringList calls;
    bool attached = false;

    [[nodiscard]] bool IsAttached() const override { return attached; }
    [[nodiscard]] bool Attach() override { return reach(QStringLiteral("attach")); }
    [[nodiscard]] bool Create() override { return reach(QStringLiteral("create")); }
    void SetRadioType(int type) override { calls << QStringLiteral("type %1").arg(type); }
    void SetPort(const QString &number, bool show) override {
        calls << QStringLiteral("port %1 %2").arg(number, show ? QStringLiteral("shown") : QStringLiteral("hidden"));
    }

  private:
    bool reach(const QString &way) {
        calls << way;
        return attached = way == reachedBy;
    }
};
} // namespace

void DocumentsRadioTest::theDownloaderIsToldModelAndPort_data() {
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("attached");
    QTest::addColumn<QString>("reachedBy");
    QTest::addColumn<QString>("calls");
    const auto row = [](const char *fault, const char *model, bool attached, const char *reachedBy, const char *calls) {
        QTest::newRow(fault) << QString::fromLatin1(model) << attached << QString::fromLatin1(reachedBy)
                             << QString::fromLatin1(calls);
    };
    row("a running one is not started again", "KX4600", false, "attach", "attach; type 4600; port 7 shown");
    row("one is started", "KX4600", false, "create", "attach; create; type 4600; port 7 shown");
    row("it stays attached", "KX4600", true, "", "type 4600; port 7 shown");
    row("a calibration model keeps the type", "KX4700 HPM", false, "attach", "attach; port 7 shown");
    row("a sibling starts none", "ZB2500 Rx", false, "attach", "");
    row("a sibling uses the attached one", "ZB2500 Tx", true, "", "type 4600; port 7 shown");
    row("its absence is told", "KX4600", false, "", "attach; create");
}

void DocumentsRadioTest::theDownloaderIsToldModelAndPort() {
    QFETCH(QString, model);
    QFETCH(bool, attached);
    QFETCH(QString, reachedBy);
    QFETCH(QString, calls);
    DocumentBench bench;
    bench.setSetting(QStringLiteral("CommPortNumber"), 7);
    bench.component.when(QStringLiteral("GetRadioModel")).answers(model);
    FakeDownloader downloader;
    downloader.attached = attached;
    downloader.reachedBy = reachedBy;
    const QString message = QStringLiteral("The downloader can not be started.  Please terminate the currently active "
                                           "download component before proceeding.");
    if (calls.endsWith(QStringLiteral("create")))
        bench.services.boxes.expect(message, MessageAnswer::kOk);
    clsDownloadCommand(bench.services.process, downloader, bench.services.boxes, bench.services.errors)
        .mnuDownload_Click();
    QCOMPARE(downloader.calls.join(QStringLiteral("; ")), calls);
}

// The real socket and a stand-in program, which takes half a second to listen and keeps what it is told.
void DocumentsRadioTest::theDownloaderIsStartedAndAttachedTo() {
    const QTemporaryDir folder;
    qputenv("TMPDIR", folder.path().toUtf8()); // where the socket stands
    LocalDownloader downloader(QCoreApplication::applicationDirPath() + QStringLiteral("/downloader"));
    QVERIFY(!downloader.Attach());
    QVERIFY(!LocalDownloader(folder.path()).Create());
    QVERIFY(downloader.Create());
    downloader.SetRadioType(4600);
    downloader.SetPort(QStringLiteral("101"), true);
    const auto told = [&folder] {
        QFile file(folder.filePath(QStringLiteral("told")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QTRY_COMPARE(told(), QByteArray("RadioType 4600\nSetPort 101 true\n"));
    LocalDownloader second;
    QVERIFY2(second.Attach(), "a running downloader was not found");
    second.SetPort(QStringLiteral("end"), false);
    QTRY_VERIFY2(!downloader.IsAttached(), "a downloader that has ended counts as attached");
}

QTEST_GUILESS_MAIN(DocumentsRadioTest)
#include "documents_radio_test.moc"
