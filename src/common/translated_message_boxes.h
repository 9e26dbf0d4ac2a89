#pragma once

#include "window_services.h"

class QMessageBox;

// The message boxes on the screen: plain text, centred over the active window, the first button the default. Esc and
// the close box answer Cancel, else No, else the only button; Abort, Retry, Ignore can only be answered. While a box is
// up under an hourglass, the pointer is the arrow.
class TranslatedMessageBoxes final : public MessageBoxes {
  public:
    // Both outlive it.
    TranslatedMessageBoxes(const Translation &translation, ErrorReport &errors);

    qint32 MsgBox(const QString &Text, qint32 Buttons, const QString &Title) override;
    qint32 TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                           const QString &Parameters) override;

  private:
    struct Box {
        QString text;
        QString title;
        qint32 buttons; // MessageButton
        int icon;       // QMessageBox::Icon
    };
    [[nodiscard]] qint32 show(const Box &content) const;
    void addButtons(QMessageBox &box, qint32 buttons) const;

    const Translation &mTranslation;
    ErrorReport &mErrors;
};
