#include "load_failure.h"

#include "common_error_handler.h"
#include "message_style.h"
#include "shell_ports.h"
#include "translation.h"
#include "window_services.h"

LoadFailure::LoadFailure(MessageBoxes &boxes, const Translation &translation, ProcessControl &processControl,
                         ErrorReport &errors)
    : mBoxes(boxes), mTranslation(translation), mProcessControl(processControl), mErrors(errors) {}

void LoadFailure::FailedToLoadDLL(const QString & /*DllName*/) try {
    const QString title = QStringLiteral("KX4600 - Fatal Load Error");
    if (mTranslation.Dictionary().IsOpen()) {
        mBoxes.TranslateMsgBox(
            QStringLiteral("The programming application has encountered an error with one or more components.  Please "
                           "reinstall the application and restart your computer!"),
            MessageStyle::kCritical, title, QString());
    } else {
        mBoxes.MsgBox(QStringLiteral("The programming application has encountered an error with one or more "
                                     "components.\r\n              Please reinstall the application and restart your "
                                     "computer!"),
                      MessageStyle::kCritical, title);
    }
    mProcessControl.EndNow(1);
}
ERROR_TAIL()
