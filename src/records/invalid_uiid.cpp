#include "invalid_uiid.h"

#include "common_error_handler.h"
#include "message_style.h"

bool toldAsInvalidUIID(const char *prompt, MessageBoxes &boxes, ErrorReport &errors, const char *procedure) {
    if (ErrorReport::Current().Number != ErrorNumber::kMissingObject) {
        errors.Tail(procedure);
        return false;
    }
    boxes.TranslateMsgBox(QString::fromLatin1(prompt), MessageStyle::kExclamation, QStringLiteral("Error"), QString());
    return true;
}
