#include "translated_message_boxes.h"

#include "common_error_handler.h"
#include "message_codes.h"
#include "message_style.h"
#include "product_identity.h"
#include "translation.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <array>
#include <bit>

namespace {
constexpr int kLeastPromptLength = 50;
constexpr char kAnswerProperty[] = "answer";

struct ButtonKind {
    qint32 bit;
    QLatin1String text;
    QMessageBox::ButtonRole role;
    qint32 answer;
};
// In the order in which the first one becomes the default. Abort has no role of refusal, or Esc would press it.
constexpr std::array<ButtonKind, 7> kButtonKinds{{
    {MessageButton::kYes, QLatin1String("&Yes"), QMessageBox::YesRole, MessageAnswer::kYes},
    {MessageButton::kNo, QLatin1String("&No"), QMessageBox::NoRole, MessageAnswer::kNo},
    {MessageButton::kOk, QLatin1String("OK"), QMessageBox::AcceptRole, MessageAnswer::kOk},
    {MessageButton::kCancel, QLatin1String("Cancel"), QMessageBox::RejectRole, MessageAnswer::kCancel},
    {MessageButton::kAbort, QLatin1String("&Abort"), QMessageBox::ActionRole, MessageAnswer::kAbort},
    {MessageButton::kRetry, QLatin1String("&Retry"), QMessageBox::ActionRole, MessageAnswer::kRetry},
    {MessageButton::kIgnore, QLatin1String("&Ignore"), QMessageBox::ActionRole, MessageAnswer::kIgnore},
}};

// The arrow for the time of a box, if a program-wide pointer is set.
class ArrowPointer {
  public:
    ArrowPointer() : mPushed(QApplication::overrideCursor() != nullptr) {
        if (mPushed)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~ArrowPointer() {
        if (mPushed)
            QApplication::restoreOverrideCursor();
    }
    ArrowPointer(const ArrowPointer &) = delete;
    ArrowPointer &operator=(const ArrowPointer &) = delete;

  private:
    bool mPushed;
};

qint32 buttonThatEscapes(qint32 buttons) {
    for (const qint32 bit : {MessageButton::kCancel, MessageButton::kNo}) {
        if ((buttons & bit) != 0)
            return bit;
    }
    return std::has_single_bit(quint32(buttons)) ? buttons : 0;
}

QMessageBox::Icon iconOfCode(qint32 code) {
    constexpr std::array<QMessageBox::Icon, 4> kIcons{QMessageBox::Warning, QMessageBox::Critical,
                                                      QMessageBox::Information, QMessageBox::Question};
    return kIcons.at(std::size_t(code));
}

// Unlike the translated box, a plain one without an icon flag has no icon.
QMessageBox::Icon iconOfFlags(qint32 flags) {
    return flags < MessageStyle::kCritical ? QMessageBox::NoIcon : iconOfCode(ReturnNLSDialogType(flags));
}
} // namespace

TranslatedMessageBoxes::TranslatedMessageBoxes(const Translation &translation, ErrorReport &errors)
    : mTranslation(translation), mErrors(errors) {}

qint32 TranslatedMessageBoxes::MsgBox(const QString &Text, qint32 Buttons, const QString &Title) try {
    return show({Text, Title, ReturnNLSButtons(Buttons), iconOfFlags(Buttons)});
}
ERROR_TAIL(MessageAnswer::kNone)

qint32 TranslatedMessageBoxes::TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                                               const QString &Parameters) try {
    const QString text = mTranslation.NLSFmt(Prompt, Parameters).leftJustified(kLeastPromptLength);
    const QString title = mTranslation.NLSStr(Title.isEmpty() ? ProductIdentity::title() : Title);
    return show({text, title, ReturnNLSButtons(Buttons), iconOfCode(ReturnNLSDialogType(Buttons))});
}
ERROR_TAIL_AS("Translation Module - TranslateMsgBox", MessageAnswer::kNone)

qint32 TranslatedMessageBoxes::show(const Box &content) const {
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(QMessageBox::Icon(content.icon));
    box.setWindowTitle(content.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(QString(content.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    addButtons(box, content.buttons);
    const ArrowPointer arrow;
    box.exec();
    const QAbstractButton *clicked = box.clickedButton();
    return clicked == nullptr ? MessageAnswer::kNone : clicked->property(kAnswerProperty).toInt();
}

void TranslatedMessageBoxes::addButtons(QMessageBox &box, qint32 buttons) const {
    const qint32 escapes = buttonThatEscapes(buttons);
    for (const ButtonKind &kind : kButtonKinds) {
        if ((buttons & kind.bit) == 0)
            continue;
        QPushButton *button = box.addButton(mTranslation.NLSStr(kind.text), kind.role);
        button->setProperty(kAnswerProperty, kind.answer);
        if (box.defaultButton() == nullptr)
            box.setDefaultButton(button);
        if (kind.bit == escapes)
            box.setEscapeButton(button);
    }
}
