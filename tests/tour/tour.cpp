#include "tour.h"

#include "frm_main.h"
#include "main_program.h"
#include "program_hands.h"
#include "radio_process.h"
#include "transformer.h"
#include "window_input.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QLineEdit>
#include <QPalette>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <array>
#include <utility>

namespace {
const QString kTimer = QStringLiteral("EconomyTimer");
const QString kEconomy = QStringLiteral("Economy");
const QString kChannels = QStringLiteral("Channels");
const QString kRxFrequency = QStringLiteral("RxFreq_q7r");
const QString kFresh = QStringLiteral("10"); // of the economy timer, in new data
const QString kEdited = QStringLiteral("25");
constexpr int kRxColumn = 1;
constexpr qint32 kFleetChannels = 60;
constexpr int kPageHeight = 768;
constexpr int kPageWidth = 1024;

QPalette darkPalette() {
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::Link, QColor(42, 130, 218));
    return palette;
}
} // namespace

Tour::Tour(ProgramMaker makeProgram, const RadioProcess &radio, TourDialogs &dialogs, TourReport &report,
           QString serialNumber)
    : mMakeProgram(std::move(makeProgram)), mRadio(radio), mDialogs(dialogs), mReport(report), mPilot(report),
      mSerialNumber(std::move(serialNumber)), mFileName(report.folder() + QStringLiteral("/tour.k4p")) {}

Tour::~Tour() = default;

void Tour::walk() {
    struct Step {
        QString name;
        void (Tour::*run)();
    };
    const std::array steps{Step{QStringLiteral("start"), &Tour::start},
                           Step{QStringLiteral("interrogate, find the radio on another port"), &Tour::findTheRadio},
                           Step{QStringLiteral("read the radio"), &Tour::read},
                           Step{QStringLiteral("open the fleet from the recent files"), &Tour::openTheFleet},
                           Step{QStringLiteral("look at all forms"), &Tour::lookAtForms},
                           Step{QStringLiteral("edit the economy timer"), &Tour::edit},
                           Step{QStringLiteral("be refused a value"), &Tour::beRefused},
                           Step{QStringLiteral("edit a cell of the channels"), &Tour::editCell},
                           Step{QStringLiteral("paste rows of channels"), &Tour::paste},
                           Step{QStringLiteral("look at another tier"), &Tour::lookAtAnotherTier},
                           Step{QStringLiteral("see the preferences"), &Tour::seePreferences},
                           Step{QStringLiteral("look at it in dark colours"), &Tour::lookInTheDark},
                           Step{QStringLiteral("save a file"), &Tour::save},
                           Step{QStringLiteral("start anew and open the file"), &Tour::openAgain},
                           Step{QStringLiteral("program the radio"), &Tour::program},
                           Step{QStringLiteral("verify the radio's memory"), &Tour::verifyRadio},
                           Step{QStringLiteral("close"), &Tour::leave},
                           Step{QStringLiteral("start afresh and read the radio"), &Tour::readIntoFreshStart},
                           Step{QStringLiteral("close again"), &Tour::leave}};
    for (const Step &step : steps) {
        mReport.beginStep(step.name);
        (this->*step.run)();
        mReport.endStep();
    }
}

void Tour::picture(const QString &what) {
    QCoreApplication::processEvents();
    mReport.picture(mProgram->Window(), what);
}

void Tour::quietly(const QString &pictureName, const std::function<void()> &action) {
    mPilot.during(pictureName, action);
    require(mPilot.boxes().isEmpty(),
            QStringLiteral("%1 met a message: %2").arg(pictureName, mPilot.boxes().join(u'/')));
}

// One message, which says what is allowed.
void Tour::beRefusedBy(const QString &pictureName, const std::function<void()> &action) {
    mPilot.during(pictureName, action);
    const QString told = mPilot.boxes().join(u'/');
    require(mPilot.boxes().size() == 1 && told.contains(QStringLiteral("between")),
            QStringLiteral("a wrong value met: %1").arg(told));
    WindowInput::activate(mProgram->Window());
}

void Tour::trigger(const QString &command, const QString &pictureName) {
    mPilot.during(pictureName, [&] { mHands->trigger(command); });
}

void Tour::expect(const QString &uiid, const QString &wanted, qint32 record) const {
    const QString found = mHands->value(uiid, record);
    require(found == wanted, QStringLiteral("%1 is %2, not %3").arg(uiid, found, wanted));
}

void Tour::start() {
    mProgram.reset();
    mProgram = mMakeProgram();
    require(mProgram->Start(), QStringLiteral("the program did not start"));
    mHands = std::make_unique<ProgramHands>(mProgram->Window(), mProgram->Component());
    mProgram->Window().resize(kPageWidth, kPageHeight);
    WindowInput::activate(mProgram->Window());
    require(!mProgram->Component().GetCurrentFormName().isEmpty(), QStringLiteral("no form is open"));
    picture(QStringLiteral("started"));
}

// The radio is not on the stored port, COM1.
void Tour::findTheRadio() {
    trigger(QStringLiteral("mnuInterrogateRadio"), QStringLiteral("interrogation"));
    require(mPilot.windows() == QStringList(QStringLiteral("frmPortChoice")),
            QStringLiteral("the missing port did not lead to the choice of another"));
    require(mPilot.radioDetails().contains(mSerialNumber),
            QStringLiteral("the radio's details do not name its serial number: %1").arg(mPilot.radioDetails()));
}

void Tour::read() {
    trigger(QStringLiteral("mnuReadRadio"), QStringLiteral("read"));
    require(mPilot.windows().isEmpty(), QStringLiteral("the port that answered was not stored"));
    expect(QStringLiteral("SerialNumber"), mSerialNumber);
    require(mProgram->Component().GetCurrentTier() == QStringLiteral("Advanced"),
            QStringLiteral("the radio's tier is not the current one"));
    require(mProgram->Window().windowTitle().contains(mSerialNumber),
            QStringLiteral("the title does not name the radio: %1").arg(mProgram->Window().windowTitle()));
    picture(QStringLiteral("after-reading"));
}

void Tour::openTheFleet() {
    quietly(QStringLiteral("fleet"), [this] { mHands->trigger(QStringLiteral("mnuItemsRecent(1)")); });
    const qint32 channels = mProgram->Component().GetNumberOfRecords(QStringLiteral("ChannelID_q7r"));
    require(channels == kFleetChannels, QStringLiteral("the fleet has %1 channels").arg(channels));
    picture(QStringLiteral("fleet"));
}

void Tour::lookAtForms() {
    auto *tree = mProgram->Window().findChild<QTreeWidget *>(QStringLiteral("FormTree"));
    require(tree != nullptr, QStringLiteral("there is no form tree"));
    QStringList captions;
    for (QTreeWidgetItemIterator item(tree, QTreeWidgetItemIterator::NoChildren); *item != nullptr; ++item)
        captions << (*item)->text(0);
    for (const QString &caption : captions) {
        quietly(caption, [&] { mHands->openForm(caption); });
        picture(QStringLiteral("form-") + QString(caption).replace(u' ', u'-').remove(u'/'));
    }
}

void Tour::edit() {
    quietly(kEconomy, [this] { mHands->openForm(kEconomy); });
    mHands->typeOver(mHands->editorOf(kTimer), kEdited);
    picture(QStringLiteral("typing"));
    quietly(QStringLiteral("leaving"), [] { WindowInput::key(Qt::Key_Tab); });
    expect(kTimer, kEdited);
}

void Tour::beRefused() {
    QLineEdit &editor = mHands->editorOf(kTimer);
    mHands->typeOver(editor, QStringLiteral("999"));
    beRefusedBy(QStringLiteral("refused"), [] { WindowInput::key(Qt::Key_Tab); });
    require(mProgram->Window().focusWidget() == &editor && editor.text() == QStringLiteral("999"),
            QStringLiteral("the refused text lost the focus or was changed"));
    picture(QStringLiteral("refused"));
    WindowInput::key(Qt::Key_Escape);
    require(editor.text() == kEdited, QStringLiteral("Escape did not bring the value back"));
    expect(kTimer, kEdited);
}

void Tour::editCell() {
    quietly(kChannels, [this] { mHands->openForm(kChannels); });
    quietly(QStringLiteral("cell"), [this] {
        mHands->clickCell(1, kRxColumn);
        WindowInput::type(QStringLiteral("166.500000"));
        picture(QStringLiteral("cell"));
        WindowInput::key(Qt::Key_Return);
    });
    expect(kRxFrequency, QStringLiteral("166.500000"), 2);
    // A cell that is refused holds the row.
    mHands->clickCell(2, kRxColumn);
    WindowInput::type(QStringLiteral("999"));
    beRefusedBy(QStringLiteral("cell-refused"), [this] { mHands->clickCell(4, kRxColumn); });
    require(mHands->table().currentIndex().row() == 2, QStringLiteral("a refused cell was left"));
    WindowInput::key(Qt::Key_Escape);
}

void Tour::paste() {
    QApplication::clipboard()->setText(QStringLiteral("166.512500\n166.525000\n166.537500"));
    mPilot.during(QStringLiteral("paste"), [this] {
        mHands->clickCell(2, kRxColumn);
        mHands->trigger(QStringLiteral("mnuPaste"));
    });
    WindowInput::activate(mProgram->Window());
    picture(QStringLiteral("pasted"));
    expect(kRxFrequency, QStringLiteral("166.512500"), 3);
    expect(kRxFrequency, QStringLiteral("166.537500"), 5);
}

void Tour::lookAtAnotherTier() {
    quietly(QStringLiteral("tier"), [this] { mHands->chooseTier(QStringLiteral("Standard")); });
    expect(kTimer, kFresh);
    picture(QStringLiteral("another-tier"));
    quietly(QStringLiteral("tier"), [this] { mHands->chooseTier(QStringLiteral("Advanced")); });
    expect(kTimer, kEdited);
}

void Tour::seePreferences() {
    trigger(QStringLiteral("mnuOptions"), QStringLiteral("options"));
    require(mPilot.windows() == QStringList(QStringLiteral("frmPreferences")),
            QStringLiteral("the preferences did not show"));
}

void Tour::lookInTheDark() {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(darkPalette());
    for (const QString &caption : {kChannels, kEconomy}) {
        quietly(caption, [&] { mHands->openForm(caption); });
        picture(QStringLiteral("dark-") + caption);
    }
    QApplication::setPalette(light);
}

void Tour::save() {
    mDialogs.fileName = mFileName;
    trigger(QStringLiteral("mnuSaveAs"), QStringLiteral("save"));
    require(QFileInfo::exists(mFileName) && !mProgram->Component().GetDataIsDirty(),
            QStringLiteral("the file was not saved"));
    const QString stored = outputOf(QCoreApplication::applicationDirPath() + QStringLiteral("/kx4600ctl"),
                                    {QStringLiteral("get"), mFileName, kTimer});
    require(stored.trimmed() == kEdited, QStringLiteral("the file holds %1").arg(stored));
    picture(QStringLiteral("saved"));
}

void Tour::openAgain() {
    trigger(QStringLiteral("mnuNew"), QStringLiteral("new"));
    expect(kTimer, kFresh);
    trigger(QStringLiteral("mnuOpen"), QStringLiteral("open"));
    expect(kTimer, kEdited);
    quietly(kEconomy, [this] { mHands->openForm(kEconomy); });
    require(mHands->editorOf(kTimer).text() == kEdited, QStringLiteral("the form does not show the file's value"));
    picture(QStringLiteral("opened"));
}

void Tour::program() {
    trigger(QStringLiteral("mnuProgramRadio"), QStringLiteral("programming"));
    require(!mPilot.boxes().isEmpty() && mPilot.boxes().constLast().contains(QStringLiteral("verified")),
            QStringLiteral("programming ended with: %1").arg(mPilot.boxes().join(u'/')));
    picture(QStringLiteral("programmed"));
}

void Tour::verifyRadio() {
    const QString tool = QCoreApplication::applicationDirPath() + QStringLiteral("/kx4600ctl");
    const QString copy = mReport.folder() + QStringLiteral("/radio.k4p");
    outputOf(tool, {QStringLiteral("read"), QStringLiteral("--port"), mRadio.link(), QStringLiteral("-o"), copy});
    const QString stored = outputOf(
        tool, {QStringLiteral("get"), copy, kTimer, QStringLiteral("RxFreq_q7r(2)"), QStringLiteral("SerialNumber")});
    require(stored.split(u'\n', Qt::SkipEmptyParts) ==
                QStringList{kEdited, QStringLiteral("166.500000"), mSerialNumber},
            QStringLiteral("the radio holds %1").arg(stored));
}

void Tour::leave() {
    quietly(QStringLiteral("closing"), [this] { mProgram->Window().close(); });
    require(!mProgram->Window().isVisible(), QStringLiteral("the window did not close"));
}

void Tour::readIntoFreshStart() {
    start();
    expect(kTimer, kFresh);
    read();
    quietly(kEconomy, [this] { mHands->openForm(kEconomy); });
    require(mHands->editorOf(kTimer).text() == kEdited, QStringLiteral("the form does not show the radio's value"));
    picture(QStringLiteral("read-afresh"));
}
