#pragma once

#include "test_failure.h"
#include "window_services.h"

#include <QString>
#include <QStringList>

#include <deque>

// Message boxes that answer by script. A box that nobody expected fails the test and answers 0; so does, at the end of
// this object, an expected box that never came.
class ScriptedMessageBoxes final : public MessageBoxes {
  public:
    explicit ScriptedMessageBoxes(TestFailure fail = failTest);
    ~ScriptedMessageBoxes() override;
    ScriptedMessageBoxes(const ScriptedMessageBoxes &) = delete;
    ScriptedMessageBoxes &operator=(const ScriptedMessageBoxes &) = delete;

    // The next box must have this text (of a translated box: its untranslated prompt).
    void expect(const QString &text, qint32 answer);
    // What was shown: "title: text" with the style in brackets, a line a box.
    [[nodiscard]] const QStringList &shown() const { return mShown; }

    qint32 MsgBox(const QString &Text, qint32 Buttons, const QString &Title) override;
    qint32 TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                           const QString &Parameters) override;

  private:
    struct Expected {
        QString text;
        qint32 answer;
    };
    qint32 answer(const QString &text, qint32 buttons, const QString &title);

    TestFailure mFail;
    std::deque<Expected> mExpected;
    QStringList mShown;
};
