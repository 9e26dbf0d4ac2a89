#include "document_doubles.h"
#include "message_style.h"
#include "talk_to_radio.h"

#include <QTest>

namespace {
const QString kQuestion =
    QStringLiteral("This form has outstanding changes.  If you proceed these changes may be lost.  "
                   "Do you wish to proceed?");

struct Case {
    const char *fault;
    InterrogationType type;
    bool formLoaded = true;
    bool formDirty = false;
    qint32 answer = 0; // of the form's question; 0: it must not come
    bool savesForm = true;
    const char *model = "KX4600";
    const char *refuses = "";
    bool loadFailed = false;
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
     .steps = "shell.FocusFormTree(); shell.SaveForm(); window(1)"},
    {.fault = "a read without a form asks nothing",
     .type = InterrogationType::kRead,
     .formLoaded = false,
     .formDirty = true,
     .steps = "shell.FocusFormTree(); shell.SaveForm(); window(1)"},
    {.fault = "No keeps the form from a read",
     .type = InterrogationType::kRead,
     .formDirty = true,
     .answer = MessageAnswer::kNo},
    {.fault = "Yes goes on to the read",
     .type = InterrogationType::kRead,
     .formDirty = true,
     .answer = MessageAnswer::kYes,
     .steps = "shell.FocusFormTree(); shell.SaveForm(); window(1)"},
    {.fault = "a form that cannot be saved stops the read",
     .type = InterrogationType::kRead,
     .savesForm = false,
     .steps = "shell.FocusFormTree(); shell.SaveForm()"},
    {.fault = "a program run saves the form without a question",
     .type = InterrogationType::kProgram,
     .formDirty = true,
     .steps = "shell.SaveForm(); shell.SetTierNodeGreenTick(true); window(2)"},
    {.fault = "a form that cannot be saved is never programmed",
     .type = InterrogationType::kProgram,
     .savesForm = false,
     .steps = "shell.SaveForm()"},
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
              "SetCurrentFormName(USRCTLCALSPECIFICATIONS); window(1)"},
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
};

namespace {
struct RadioBench : DocumentBench {
    std::function<void()> whileShown;
    clsTalkToRadio radio{services.process, shell, services.boxes, services.errors, [this](InterrogationType type) {
                             log.add(QStringLiteral("window"), {qint32(type)});
                             if (whileShown)
                                 whileShown();
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
    bench.component.when(QStringLiteral("GetFormIsDirty")).answers(row->formDirty);
    bench.component.when(QStringLiteral("GetRadioModel")).answers(QString::fromLatin1(row->model));
    bench.component.when(QStringLiteral("GetLoadFailed")).answers(row->loadFailed);
    if (*row->refuses != '\0')
        bench.component.when(QString::fromLatin1(row->refuses)).refuses();
    if (row->answer != 0)
        bench.services.boxes.expect(kQuestion, row->answer);
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

QTEST_GUILESS_MAIN(DocumentsRadioTest)
#include "documents_radio_test.moc"
