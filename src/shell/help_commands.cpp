#include "help_commands.h"

#include "cls_control_item.h"
#include "common_error_handler.h"
#include "form_host.h"
#include "form_nodes.h"
#include "help_pages.h"
#include "help_viewer.h"
#include "ienabler.h"
#include "pending_events.h"
#include "process_values.h"
#include "transformer.h"
#include "translation.h"

#include <QApplication>
#include <QKeyEvent>

namespace {
const QString kSub = QStringLiteral("Sub");

clsHelp::MakeViewer viewerMaker(const Translation &translation) {
    return [&translation](const QString &folder, QWidget *parent) {
        return new HelpViewer(
            folder, [&translation](const QString &text) { return translation.NLSStr(text); }, parent);
    };
}
} // namespace

HelpCommands::HelpCommands(const ProcessValues &process, Transformer &transformer, const Translation &translation,
                           MessageBoxes &boxes, const Parts &parts, ErrorReport &errors)
    : mProcess(process), mTransformer(transformer), mParts(parts), mErrors(errors),
      mHelp(boxes, viewerMaker(translation)), mCommon(translation, boxes, mHelp, modCommonHelp::HelpFolder()),
      mTexts(transformer, translation),
      mWhatsThis(process, parts.host, parts.nodes, mTexts, errors, [this](qint32 number) { showTopic(number); }) {
    qApp->installEventFilter(this);
}

void HelpCommands::call(HelpCommand command, const QVariant &topic) {
    mCommon.CallHelp(mCommon.HelpFile(mTransformer.GetRadioModel(), true), command, topic, &mParts.window);
}

void HelpCommands::mnuContents_Click() try { call(HelpCommand::kContents, {}); }
ERROR_TAIL()

void HelpCommands::ShowFormTopic() try {
    if (mParts.host.IsFormLoaded())
        call(HelpCommand::kTopic, HelpPages::pageOfForm(mParts.host.LoadedUsrControl().typeName));
}
ERROR_TAIL()

void HelpCommands::showTopic(qint32 number) try { call(HelpCommand::kTopic, number); }
ERROR_TAIL()

qint32 HelpCommands::activeTopic() const {
    const auto enabler = mProcess.colEnablers.Item(mProcess.CurrentEnablerKey);
    const auto item = enabler == nullptr ? nullptr : enabler->Ienabler_GetActiveControl();
    return item == nullptr || item->Terminated() ? 0 : mTexts.NumberOf(item->Field());
}

bool HelpCommands::Form_KeyDown(int KeyCode, Qt::KeyboardModifiers Shift) try {
    if (KeyCode != kF1Code || !mParts.host.IsFormLoaded())
        return false;
    const qint32 topic = activeTopic();
    if ((Shift & Qt::ShiftModifier) != 0) {
        mParts.nodes.SetFocus();
        letPendingEventsRun();
        ShowWhatsThisHelp(topic);
    } else if (topic != 0) {
        showTopic(topic);
    } else {
        ShowFormTopic();
    }
    return true;
}
ERROR_TAIL(true)

// In a sub-form, whose keys the main window does not hear.
bool HelpCommands::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::KeyPress || mProcess.CurrentEnablerKey != kSub ||
        watched != QApplication::focusWidget() || QApplication::focusWidget()->window() == &mParts.window)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(*event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier && Form_KeyDown(kF1Code, key.modifiers());
}
