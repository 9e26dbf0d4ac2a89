#include "shut_down.h"

#include "common_error_handler.h"
#include "component_dialogs.h"
#include "form_host.h"
#include "form_nodes.h"
#include "message_style.h"
#include "pending_events.h"
#include "process_values.h"
#include "transformer.h"
#include "window_input_filter.h"
#include "window_position.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

ShutDown::ShutDown(Transformer &transformer, ProcessValues &process, const Parts &parts, ErrorReport &errors)
    : mTransformer(transformer), mProcess(process), mParts(parts), mErrors(errors) {}

void ShutDown::Form_QueryUnload(bool &Cancel, qint32 UnloadMode) try {
    mParts.position.SaveState();
    mParts.position.SavePosition();
    if (UnloadMode != UnloadMode::kByCode) {
        const bool nothingLost = mTransformer.ValidateOnExit();
        const bool formIsDirty = mTransformer.GetFormIsDirty();
        qint32 answer = MessageAnswer::kYes;
        if (!nothingLost || formIsDirty) {
            mParts.dialogs.GeneralDialog(
                QStringLiteral("You have made changes that have not been saved to a file %0:S or a radio.  Do you "
                               "still want to exit the application?"),
                MessageStyle::kYesNo | MessageStyle::kExclamation,
                QStringLiteral("Exiting the KX4600 Programming Application"), answer, QStringLiteral("\r\n"));
        }
        if (answer != MessageAnswer::kYes)
            Cancel = true;
    }
    mParts.nodes.SetFocus();
    letPendingEventsRun();
    if (!Cancel)
        closeOtherWindows();
}
ERROR_TAIL()

void ShutDown::closeOtherWindows() {
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window != &mParts.window && window->isVisible())
            window->close();
    }
}

void ShutDown::mnuExit_Click() try {
    bool cancel = false;
    Form_QueryUnload(cancel, UnloadMode::kCloseBox);
    if (cancel)
        return;
    mClosing = true;
    mParts.window.close();
}
ERROR_TAIL()

void ShutDown::CloseRequested(bool &Cancel) try {
    if (!mClosing)
        Form_QueryUnload(Cancel, UnloadMode::kCloseBox);
    mClosing = mClosing || !Cancel;
}
ERROR_TAIL()

void ShutDown::CloseByCode() {
    mParts.inputFilter.SetDisabled(false);
    while (QWidget *modal = QApplication::activeModalWidget()) {
        modal->hide(); // ends the modal loop of a dialog, whatever it thinks of being closed
        if (QApplication::activeModalWidget() == modal)
            break;
    }
    if (mClosing)
        return;
    mClosing = true;
    bool cancel = false;
    Form_QueryUnload(cancel, UnloadMode::kByCode);
    mParts.window.close();
}

void ShutDown::Form_Terminate() try {
    mParts.host.UnloadCurrentForm();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mTransformer.RemoveListener(&mParts.events);
    mTransformer.ShutDown();
    mProcess.objTransformer = nullptr;
}
ERROR_TAIL()
