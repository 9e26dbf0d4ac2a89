#include "cls_control_item.h"
#include "field_event.h"
#include "frm_main.h"
#include "frm_mapping_gen.h"
#include "ifield.h"
#include "mapping_shell.h"
#include "message_style.h"
#include "process_values.h"
#include "program_bench.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"
#include "window_input.h"

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>
#include <QUrl>

// A main window that answers with prepared files.
class PreparedShell final : public MappingShell {
  public:
    QWidget window;
    QString file; // "": the user cancels
    bool formLoaded = true;
    bool valid = true;
    int resets = 0;
    QStringList titles;

    [[nodiscard]] bool IsFormLoaded() const override { return formLoaded; }
    bool FinalValidation() override { return valid; }
    void ResetToDefaults() override { ++resets; }
    std::optional<QString> ChooseFile(const MappingFileRequest &request, QWidget * /*owner*/) override {
        titles << request.title;
        return file.isEmpty() ? std::nullopt : std::optional(file);
    }
    [[nodiscard]] QWidget *Window() const override { return const_cast<QWidget *>(&window); }
};

// The mapping window on the real component.
class MappingWindowTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mBench = std::make_unique<ProgramBench>(QStringLiteral("Advanced")); }
    void cleanupTestCase() { mBench.reset(); }
    void init();
    void hiddenEntryOpensByKey();
    void savedScriptReplaysOnFreshData();
    void scriptBoxTakesNoKeys();
    void droppedScriptShowsItsPurpose();
    void cancelledAndRefusedSavesDoNothing();
    void newAsksOnlyOverAScript();
    void hookPointsRecordAndRevert();
    void textsAreInThePresentLanguage();

  private:
    [[nodiscard]] QPlainTextEdit &box(const char *name) const {
        return *mWindow->findChild<QPlainTextEdit *>(QString::fromLatin1(name));
    }
    std::unique_ptr<ProgramBench> mBench;
    std::unique_ptr<PreparedShell> mShell;
    std::unique_ptr<frmMappingGen> mWindow;
    Translation mTranslation;
    QTemporaryDir mFolder;
};

void MappingWindowTest::init() {
    mWindow.reset();
    mShell = std::make_unique<PreparedShell>();
    mBench->component().ResetDatabase();
    mWindow = std::make_unique<frmMappingGen>(
        frmMappingGen::Services{mBench->component(), mBench->boxes, mTranslation, mBench->errors, *mShell});
}

void MappingWindowTest::hiddenEntryOpensByKey() {
    const auto *entry = mBench->window().findChild<QAction *>(QStringLiteral("mnuMappingsGen"));
    QVERIFY(!entry->isVisible());
    WindowInput::activate(mBench->window());
    WindowInput::key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    auto *opened = mBench->window().findChild<frmMappingGen *>();
    QVERIFY(opened != nullptr && opened->isVisible());
    ProgramBench::picture(*opened, QStringLiteral("mapping"));
    opened->close();
}

void MappingWindowTest::savedScriptReplaysOnFreshData() {
    box("txtComments").setPlainText(QStringLiteral("Economy\nand a channel"));
    mWindow->Recorder().UIFields() = {QStringLiteral("EconomyTimer = 25"),
                                      QStringLiteral("Add Channels9000-Channels9000, 0"),
                                      QStringLiteral("RxFreq_q7r(2) = 156.5")};
    mShell->file = mFolder.filePath(QStringLiteral("economy.tst"));
    mWindow->mnuFileSave_Click();
    QCOMPARE(mShell->titles, QStringList{QStringLiteral("Save Test Script")});
    QVERIFY(mWindow->windowTitle().startsWith(QStringLiteral("Mapping Test Script Generator - economy.tst (")));
    const QString before = box("txtScript").toPlainText();

    init();
    mShell->file = mFolder.filePath(QStringLiteral("economy.tst"));
    mWindow->mnuFileLoad_Click();
    QCOMPARE(ValueText::of(mBench->component().GetValue(QStringLiteral("EconomyTimer"), 1)), QStringLiteral("25"));
    QCOMPARE(ValueText::of(mBench->component().GetValue(QStringLiteral("RxFreq_q7r"), 2)),
             QStringLiteral("156.500000"));
    QCOMPARE(box("txtScript").toPlainText(), before);
    QCOMPARE(box("txtComments").toPlainText(), QStringLiteral("Economy\nand a channel"));
}

void MappingWindowTest::scriptBoxTakesNoKeys() {
    WindowInput::activate(*mWindow);
    box("txtScript").setFocus();
    const QString before = box("txtScript").toPlainText();
    WindowInput::type(QStringLiteral("x"));
    WindowInput::key(Qt::Key_Delete);
    QCOMPARE(box("txtScript").toPlainText(), before);
}

void MappingWindowTest::droppedScriptShowsItsPurpose() {
    QFile file(mFolder.filePath(QStringLiteral("dropped.tst")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("' Purpose: what it is for\n' Date: today\nUI Fields:\n");
    file.close();
    QMimeData text;
    text.setText(QStringLiteral("only text"));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(file.fileName())});
    QWidget *target = box("txtScript").viewport();
    for (const auto &[data, taken] : {std::pair{&text, false}, std::pair{&files, true}}) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        QCOMPARE(enter.isAccepted(), taken);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &drop);
    }
    QCOMPARE(box("txtComments").toPlainText(), QStringLiteral("what it is for"));
}

void MappingWindowTest::cancelledAndRefusedSavesDoNothing() {
    mWindow->mnuFileSave_Click(); // cancelled
    QCOMPARE(mShell->titles.size(), 1);
    mShell->valid = false;
    mWindow->mnuFileSave_Click();
    mShell->valid = true;
    mShell->formLoaded = false;
    mWindow->mnuFileSave_Click();
    QCOMPARE(mShell->titles.size(), 1);
    mShell->formLoaded = true;
    mShell->file = mFolder.filePath(QStringLiteral("no/such/file.tst"));
    mBench->boxes.expect(QStringLiteral("The file %0:S could not be written."), 0);
    mWindow->mnuFileSave_Click();
}

void MappingWindowTest::newAsksOnlyOverAScript() {
    mWindow->mnuNew_Click();
    QCOMPARE(mShell->resets, 1);
    mWindow->Recorder().UIFields() = {QStringLiteral("A = 1")};
    const QString question = QStringLiteral("If you continue your mapping test script generation output will be "
                                            "lost.  Are you sure you want to continue?");
    mBench->boxes.expect(question, MessageAnswer::kNo);
    mWindow->mnuNew_Click();
    QCOMPARE(mWindow->Recorder().UIFields().size(), 1);
    mBench->boxes.expect(question, MessageAnswer::kYes);
    mWindow->mnuNew_Click();
    QCOMPARE(mShell->resets, 2);
    QVERIFY(mWindow->Recorder().UIFields().isEmpty());
}

void MappingWindowTest::hookPointsRecordAndRevert() {
    mBench->open({QStringLiteral("usrctlEconomyKX4600"), QStringLiteral("Economy")});
    Ifield *timer = mBench->usableFields().front();
    const auto item = timer->Ifield_WrapperCtrlItem();
    bool cancel = false;
    const FieldEvent validate(QStringLiteral("ManualValidate"), cancel);
    bool ok = false;
    for (const char *value : {"30", "30", "40"}) {
        mBench->component().SetValue(QStringLiteral("EconomyTimer"), QString::fromLatin1(value), 0, true, ok);
        timer->Ifield_SetValue(QString::fromLatin1(value), false);
        mWindow->MarkOriginalValue(item, validate);
        mWindow->FieldEvent(item, validate);
    }
    QCOMPARE(mWindow->Recorder().UIFields(),
             (QStringList{QStringLiteral("EconomyTimer = 30"), QStringLiteral("EconomyTimer = 40")}));
    QCOMPARE(mWindow->OriginalValue().first(), QStringLiteral("EconomyTimer"));
    mWindow->FieldEvent(item, FieldEvent(QStringLiteral("Change"))); // a text field tells by ManualValidate only
    QCOMPARE(mWindow->Recorder().UIFields().size(), 2);
    QVERIFY(mWindow->RevertForm());
    QVERIFY(mWindow->Recorder().UIFields().isEmpty());
}

// Also where the language changes while the window is hidden.
void MappingWindowTest::textsAreInThePresentLanguage() {
    mTranslation.Dictionary().Load(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/KX4600.mld"));
    for (const qint32 language : {2, 1}) {
        mTranslation.gLanguage = language;
        QEvent change(QEvent::LanguageChange); // as every window gets it, shown or not
        QCoreApplication::sendEvent(&*mWindow, &change);
        const bool french = language == 2;
        QVERIFY(mWindow->windowTitle().startsWith(french ? QStringLiteral("Générateur")
                                                         : QStringLiteral("Mapping Test Script Generator")));
        QCOMPARE(mWindow->findChild<QAction *>(QStringLiteral("mnuFileLoad"))->text(),
                 french ? QStringLiteral("&Charger...") : QStringLiteral("&Load..."));
        QCOMPARE(box("txtComments").placeholderText(), french ? QStringLiteral("Objet") : QStringLiteral("Purpose"));
    }
}

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    MappingWindowTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "mapping_window_test.moc"
