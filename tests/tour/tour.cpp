#include "tour.h"

#include "frm_main.h"
#include "ifield.h"
#include "main_program.h"
#include "radio_process.h"
#include "transformer.h"
#include "value_text.h"
#include "window_input.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

#include <array>
#include <utility>

namespace {
const QString kTimer = QStringLiteral("EconomyTimer");
constexpr int kPageHeight = 768;
constexpr int kPageWidth = 1024;
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
                           Step{QStringLiteral("interrogate the radio"), &Tour::interrogate},
                           Step{QStringLiteral("read the radio"), &Tour::read},
                           Step{QStringLiteral("look at the forms"), &Tour::lookAtForms},
                           Step{QStringLiteral("edit the economy timer"), &Tour::edit},
                           Step{QStringLiteral("be refused a value"), &Tour::beRefused},
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

QString Tour::value(const QString &uiid) const { return ValueText::of(mProgram->Component().GetValue(uiid, 0)); }

void Tour::trigger(const QString &action, const QString &picture) {
    auto *found = mProgram->Window().findChild<QAction *>(action);
    require(found != nullptr, QStringLiteral("there is no command %1").arg(action));
    require(found->isEnabled(), QStringLiteral("the command %1 is disabled").arg(action));
    mPilot.during(picture, [found] { found->trigger(); });
}

void Tour::openForm(const QString &caption) {
    auto *tree = mProgram->Window().findChild<QTreeWidget *>(QStringLiteral("FormTree"));
    require(tree != nullptr, QStringLiteral("there is no form tree"));
    const QList<QTreeWidgetItem *> items = tree->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
    require(items.size() == 1, QStringLiteral("the tree has no node %1").arg(caption));
    tree->scrollToItem(items.constFirst());
    const QPoint middle = tree->visualItemRect(items.constFirst()).center();
    mPilot.during(caption, [&] { WindowInput::clickAt(*tree->viewport(), middle); });
    require(mProgram->Component().GetCurrentFormName() == caption,
            QStringLiteral("a click on %1 opened %2").arg(caption, mProgram->Component().GetCurrentFormName()));
}

QLineEdit &Tour::editorOf(const QString &uiid) const {
    for (QWidget *widget : mProgram->Window().findChildren<QWidget *>()) {
        const auto *field = dynamic_cast<const Ifield *>(widget);
        if (field == nullptr || field->Ifield_GetUIID() != uiid)
            continue;
        auto *editor = widget->findChild<QLineEdit *>();
        require(editor != nullptr && editor->isVisible(), QStringLiteral("%1 shows no text box").arg(uiid));
        return *editor;
    }
    throw TourFailure(QStringLiteral("the open form has no field %1").arg(uiid));
}

void Tour::typeOver(QLineEdit &editor, const QString &text) {
    WindowInput::activate(mProgram->Window());
    WindowInput::click(editor);
    WindowInput::key(Qt::Key_Home);
    WindowInput::key(Qt::Key_End, Qt::ShiftModifier);
    WindowInput::type(text);
}

void Tour::start() {
    mProgram.reset();
    mProgram = mMakeProgram();
    require(mProgram->Start(), QStringLiteral("the program did not start"));
    mProgram->Window().resize(kPageWidth, kPageHeight);
    WindowInput::activate(mProgram->Window());
    require(!mProgram->Component().GetCurrentFormName().isEmpty(), QStringLiteral("no form is open"));
    picture(QStringLiteral("started"));
}

void Tour::interrogate() {
    trigger(QStringLiteral("mnuInterrogateRadio"), QStringLiteral("interrogation"));
    require(mPilot.radioDetails().contains(mSerialNumber),
            QStringLiteral("the radio's details do not name its serial number: %1").arg(mPilot.radioDetails()));
}

void Tour::read() {
    trigger(QStringLiteral("mnuReadRadio"), QStringLiteral("read"));
    require(value(QStringLiteral("SerialNumber")) == mSerialNumber,
            QStringLiteral("after the read the serial number is %1").arg(value(QStringLiteral("SerialNumber"))));
    require(mProgram->Component().GetCurrentTier() == QStringLiteral("Standard"),
            QStringLiteral("the radio's tier is not the current one"));
    picture(QStringLiteral("after-reading"));
}

void Tour::lookAtForms() {
    for (const char *caption :
         {"Specifications", "Start-up", "Key Settings", "PTT", "Receiver Monitoring", "Economy"}) {
        openForm(QString::fromLatin1(caption));
        picture(QStringLiteral("form-") + QString::fromLatin1(caption).replace(u' ', u'-'));
    }
}

void Tour::edit() {
    typeOver(editorOf(kTimer), QStringLiteral("20"));
    picture(QStringLiteral("typing"));
    mPilot.during(QStringLiteral("leaving"), [] { WindowInput::key(Qt::Key_Tab); });
    require(mPilot.boxes().isEmpty(), QStringLiteral("a good value met a message"));
    require(value(kTimer) == QStringLiteral("20"), QStringLiteral("the timer is %1, not 20").arg(value(kTimer)));
}

void Tour::beRefused() {
    QLineEdit &editor = editorOf(kTimer);
    typeOver(editor, QStringLiteral("999"));
    mPilot.during(QStringLiteral("refused"), [] { WindowInput::key(Qt::Key_Tab); });
    require(mPilot.boxes().size() == 1, QStringLiteral("%1 messages instead of one").arg(mPilot.boxes().size()));
    require(mPilot.boxes().constFirst().contains(QStringLiteral("255")),
            QStringLiteral("the message does not say what is allowed: %1").arg(mPilot.boxes().constFirst()));
    WindowInput::activate(mProgram->Window());
    require(mProgram->Window().focusWidget() == &editor && editor.text() == QStringLiteral("999"),
            QStringLiteral("the refused text lost the focus or was changed"));
    picture(QStringLiteral("refused"));
    WindowInput::key(Qt::Key_Escape);
    require(editor.text() == QStringLiteral("20") && value(kTimer) == QStringLiteral("20"),
            QStringLiteral("Escape did not bring the value back"));
}

void Tour::save() {
    mDialogs.fileName = mFileName;
    trigger(QStringLiteral("mnuSave"), QStringLiteral("save"));
    require(QFileInfo::exists(mFileName) && !mProgram->Component().GetDataIsDirty(),
            QStringLiteral("the file was not saved"));
    const QString stored = outputOf(QCoreApplication::applicationDirPath() + QStringLiteral("/kx4600ctl"),
                                    {QStringLiteral("get"), mFileName, kTimer});
    require(stored.trimmed() == QStringLiteral("20"), QStringLiteral("the file holds %1").arg(stored));
    picture(QStringLiteral("saved"));
}

void Tour::openAgain() {
    trigger(QStringLiteral("mnuNew"), QStringLiteral("new"));
    require(value(kTimer) == QStringLiteral("10"), QStringLiteral("New did not bring the default back"));
    trigger(QStringLiteral("mnuOpen"), QStringLiteral("open"));
    require(value(kTimer) == QStringLiteral("20"), QStringLiteral("the opened file shows %1").arg(value(kTimer)));
    openForm(QStringLiteral("Economy"));
    require(editorOf(kTimer).text() == QStringLiteral("20"), QStringLiteral("the form does not show the file's value"));
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
    const QString stored = outputOf(tool, {QStringLiteral("get"), copy, kTimer, QStringLiteral("SerialNumber")});
    require(stored.split(u'\n', Qt::SkipEmptyParts) == QStringList{QStringLiteral("20"), mSerialNumber},
            QStringLiteral("the radio holds %1").arg(stored));
}

void Tour::leave() {
    mPilot.during(QStringLiteral("closing"), [this] { mProgram->Window().close(); });
    require(mPilot.boxes().isEmpty(), QStringLiteral("closing asked although nothing would be lost"));
    require(!mProgram->Window().isVisible(), QStringLiteral("the window did not close"));
}

void Tour::readIntoFreshStart() {
    start();
    require(value(kTimer) == QStringLiteral("10"), QStringLiteral("the fresh start shows %1").arg(value(kTimer)));
    read();
    openForm(QStringLiteral("Economy"));
    require(editorOf(kTimer).text() == QStringLiteral("20"),
            QStringLiteral("the form does not show the radio's value"));
    picture(QStringLiteral("read-afresh"));
}
