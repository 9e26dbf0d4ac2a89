#pragma once

#include "field_control.h"
#include "leavable_field.h"

// A field that can hold the focus: the steps of leaving and entering it.
class EditableField : public FieldControl, public LeavableField {
    Q_OBJECT
  public:
    using FieldControl::FieldControl;

    // In this order: the host's Validate, then the field's own last check; the first refusal ends it.
    [[nodiscard]] bool MayLeave() override;
    void FocusHasLeft() override;
    void FocusHasCome() override;
    [[nodiscard]] bool TakesFocus() const override;
    void FocusEditingPart() override { Ifield_SetFocus(); }
    [[nodiscard]] bool TabLeaves(const QKeyEvent & /*key*/) const override { return true; }

    [[nodiscard]] bool ControlEnabled() const override { return mLogicalEnabled; }
    void Ifield_SetFocus() override;

  protected:
    [[nodiscard]] virtual bool lastCheckBeforeLeave() { return true; }
    virtual void reportPendingChoice() {}
    void setLogicalEnabled(bool enabled) { mLogicalEnabled = enabled; }
    // Shift+F1 on the editing part. True: it was that key, or its announcement, and is done with.
    bool handleWhatsThisKey(QEvent &event);

  private:
    bool mLogicalEnabled = true;
};
