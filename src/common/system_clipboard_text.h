#pragma once

#include "window_services.h"

// The desktop's clipboard as text. The selection that the middle mouse button pastes is neither read nor written.
class SystemClipboardText final : public ClipboardText {
  public:
    [[nodiscard]] bool HasText() const override;
    [[nodiscard]] QString Text() const override;
    void SetText(const QString &text) override;
};
