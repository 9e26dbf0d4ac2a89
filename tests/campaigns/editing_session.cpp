#include "common_error_handler.h"
#include "frm_main.h"
#include "main_application.h"
#include "main_program.h"
#include "message_style.h"
#include "program_hands.h"
#include "transformer.h"
#include "window_input.h"
#include "window_services.h"

#include <QLineEdit>

#include <array>
#include <cstdio>
#include <random>

namespace {
struct Edit {
    const char *form;
    const char *uiid; // "": adds a channel
    int least;
    int most;
    int step;
};
constexpr std::array kEdits{Edit{"Economy", "EconomyTimer", 1, 255, 1},
                            Edit{"Receiver Monitoring", "BusyTailTime_q7r", 0, 1000, 10},
                            Edit{"Basic Settings", "TxDurationTimer", 0, 1200, 5}, Edit{"Channels", "", 0, 0, 1}};

// At once out of the process, so that a kill loses no line.
void tell(const QString &line) {
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

// Answers Yes, and tells what was asked.
class YesBoxes final : public MessageBoxes {
  public:
    qint32 MsgBox(const QString &Text, qint32 /*Buttons*/, const QString & /*Title*/) override { return yes(Text); }
    qint32 TranslateMsgBox(const QString &Prompt, qint32 /*Buttons*/, const QString & /*Title*/,
                           const QString & /*Parameters*/) override {
        return yes(Prompt);
    }

  private:
    static qint32 yes(const QString &text) {
        tell(QStringLiteral("asked ") + text.section(u'%', 0, 0));
        return MessageAnswer::kYes;
    }
};

void run(const ProgramHands &hands, const Edit &edit, std::mt19937 &random) {
    const QString uiid = QString::fromLatin1(edit.uiid);
    const auto steps = unsigned((edit.most - edit.least) / edit.step) + 1;
    const QString value = QString::number(edit.least + int(random() % steps) * edit.step);
    hands.openForm(QString::fromLatin1(edit.form));
    if (uiid.isEmpty()) {
        tell(QStringLiteral("begin add"));
        hands.clickButton(QStringLiteral("cmdAdd"));
    } else {
        hands.typeOver(hands.editorOf(uiid), value);
        tell(QStringLiteral("begin %1 %2").arg(uiid, value));
        WindowInput::key(Qt::Key_Tab);
        require(hands.value(uiid, 1) == value, uiid + QStringLiteral(" was not taken"));
    }
    tell(QStringLiteral("done"));
}

[[noreturn]] void editForever(MainProgram &program, unsigned seed) {
    const ProgramHands hands(program.Window(), program.Component());
    std::mt19937 random(seed);
    WindowInput::activate(program.Window());
    tell(QStringLiteral("ready ") + program.Component().GetCurrentTier());
    for (;;)
        run(hands, kEdits[random() % kEdits.size()], random);
}
} // namespace

// kx4600session edit SEED: edits new data with keys and clicks until it is killed, and tells of each edit before and
// after the component takes it. kx4600session recover FILE: starts, takes what is offered, and saves it.
int main(int argc, char **argv) {
    if (argc != 3)
        return 2;
    const QByteArray mode = argv[1];
    const QByteArray argument = argv[2];
    try {
        ErrorReport errors(false);
        const MainApplication application(argc, argv, errors);
        YesBoxes boxes;
        MainProgram program(errors, {}, ProgramReplacements{.fileDialogs = nullptr, .boxes = &boxes});
        require(program.Start(), QStringLiteral("the program did not start"));
        if (mode == "edit")
            editForever(program, argument.toUInt());
        bool saved = false;
        program.Component().SaveFile(QString::fromLocal8Bit(argument), QString(), 0, saved);
        return saved ? 0 : 1;
    } catch (const std::exception &failure) {
        tell(QStringLiteral("failed ") + QString::fromUtf8(failure.what()));
        return 1;
    }
}
