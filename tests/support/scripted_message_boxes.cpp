#include "scripted_message_boxes.h"

#include "message_style.h"

#include <utility>

ScriptedMessageBoxes::ScriptedMessageBoxes(TestFailure fail) : mFail(std::move(fail)) {}

ScriptedMessageBoxes::~ScriptedMessageBoxes() {
    for (const Expected &expected : mExpected)
        mFail(QStringLiteral("the expected message box did not come: ") + expected.text);
}

void ScriptedMessageBoxes::expect(const QString &text, qint32 answer) { mExpected.push_back({text, answer}); }

qint32 ScriptedMessageBoxes::MsgBox(const QString &Text, qint32 Buttons, const QString &Title) {
    return answer(Text, Buttons, Title);
}

qint32 ScriptedMessageBoxes::TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                                             const QString & /*Parameters*/) {
    return answer(Prompt, Buttons, Title);
}

qint32 ScriptedMessageBoxes::answer(const QString &text, qint32 buttons, const QString &title) {
    mShown << title + QStringLiteral(": ") + text + QStringLiteral(" [") + QString::number(buttons) + u']';
    if (mExpected.empty() || mExpected.front().text != text) {
        mFail(QStringLiteral("unexpected message box: ") + mShown.last());
        return MessageAnswer::kNone;
    }
    const qint32 result = mExpected.front().answer;
    mExpected.pop_front();
    return result;
}
