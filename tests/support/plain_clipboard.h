#pragma once

#include "window_services.h"

// A clipboard that is nothing but a text; empty means that it holds none.
class PlainClipboard final : public ClipboardText {
  public:
    [[nodiscard]] bool HasText() const override { return !mText.isEmpty(); }
    [[nodiscard]] QString Text() const override { return mText; }
    void SetText(const QString &text) override { mText = text; }

  private:
    QString mText;
};
