#pragma once

#include "tool_events.h"
#include "window_services.h"

// Message boxes of the window side as lines on standard error, answered as those of the component are.
class ToolBoxes final : public MessageBoxes {
  public:
    explicit ToolBoxes(ToolEvents &events) : mEvents(events) {}

    qint32 MsgBox(const QString &Text, qint32 Buttons, const QString &Title) override {
        return TranslateMsgBox(Text, Buttons, Title, QString());
    }
    qint32 TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                           const QString &Parameters) override {
        qint32 answer = 0;
        mEvents.TransformerEvents_MsgBox(Prompt, Buttons, Title, answer, Parameters);
        return answer;
    }

  private:
    ToolEvents &mEvents;
};
