#pragma once

#include "message_style.h"
#include "window_services.h"

#include <cstdio>

// Nobody is there to answer: Yes, or OK where there is no choice.
class YesBoxes final : public MessageBoxes {
  public:
    qint32 MsgBox(const QString &Text, qint32 Buttons, const QString & /*Title*/) override {
        constexpr qint32 kButtonBits = 7;
        std::fprintf(stderr, "box: %s\n", qUtf8Printable(Text));
        return (Buttons & kButtonBits) == MessageStyle::kOkOnly ? MessageAnswer::kOk : MessageAnswer::kYes;
    }
    qint32 TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                           const QString & /*Parameters*/) override {
        return MsgBox(Prompt, Buttons, Title);
    }
};
