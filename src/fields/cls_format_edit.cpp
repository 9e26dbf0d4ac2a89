#include "cls_format_edit.h"

#include "common_error_handler.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

namespace {
constexpr qint32 kFirstFilteredCode = 32;

// The Delete key and the like carry a control character as their text, yet type nothing.
bool typesText(const QKeyEvent &event) { return !event.text().isEmpty() && event.text().at(0).isPrint(); }
} // namespace

clsFormatEdit::clsFormatEdit(ErrorReport &errors) : mErrors(errors) {}

void clsFormatEdit::TextBox(QWidget *box) {
    if (!mTextBox.isNull())
        mTextBox->removeEventFilter(this);
    mTextBox = box;
    if (box != nullptr)
        box->installEventFilter(this);
}

void clsFormatEdit::NoTextBoxKeypress(qint32 &KeyAscii) const {
    if (KeyAscii < kFirstFilteredCode || mFormatMask.isEmpty())
        return;
    const QChar typed = QChar(char16_t(KeyAscii));
    if (mFormatMask.contains(typed))
        return;
    const QChar capital = typed.toUpper();
    KeyAscii = mUpperCase && mFormatMask.contains(capital) ? capital.unicode() : 0;
}

QString clsFormatEdit::filtered(const QString &typed) const {
    QString passed;
    for (const QChar c : typed) {
        qint32 code = c.unicode();
        NoTextBoxKeypress(code);
        if (code != 0)
            passed += QChar(char16_t(code));
    }
    return passed;
}

bool clsFormatEdit::eventFilter(QObject *watched, QEvent *event) try {
    if (mSending || watched != mTextBox)
        return false;
    if (event->type() == QEvent::KeyPress)
        return filterKey(static_cast<QKeyEvent &>(*event));
    if (event->type() == QEvent::InputMethod)
        return filterCommit(static_cast<QInputMethodEvent &>(*event));
    return false;
}
ERROR_TAIL(false)

bool clsFormatEdit::filterKey(const QKeyEvent &event) {
    if (!typesText(event))
        return false;
    const QString passed = filtered(event.text());
    if (passed == event.text())
        return false;
    if (!passed.isEmpty()) {
        QKeyEvent instead(event.type(), event.key(), event.modifiers(), passed, event.isAutoRepeat());
        sendInstead(instead);
    }
    return true;
}

bool clsFormatEdit::filterCommit(const QInputMethodEvent &event) {
    const QString passed = filtered(event.commitString());
    if (passed == event.commitString())
        return false;
    QInputMethodEvent instead(event.preeditString(), event.attributes());
    instead.setCommitString(passed, event.replacementStart(), event.replacementLength());
    sendInstead(instead);
    return true;
}

void clsFormatEdit::sendInstead(QEvent &event) {
    mSending = true;
    QCoreApplication::sendEvent(mTextBox, &event);
    mSending = false;
}
