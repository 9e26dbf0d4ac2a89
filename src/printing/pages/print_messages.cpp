#include "print_messages.h"

#include "message_style.h"
#include "window_services.h"

void PrintMessages::tell(MessageBoxes &boxes, const char *message) {
    boxes.TranslateMsgBox(QString::fromLatin1(message), MessageStyle::kExclamation, QStringLiteral("Print Error"),
                          QString());
}
