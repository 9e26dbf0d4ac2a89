#pragma once

#include "field_event.h"

#include <QString>

#include <vector>

class Ifield;

// A control's host events, heard by its clsControlItem.
class HostEvents {
  public:
    virtual ~HostEvents() = default;
    virtual void frmField_GotFocus() = 0;
    virtual void frmField_LostFocus() = 0;
    // Cancel true keeps the focus.
    virtual void frmField_Validate(bool &Cancel) = 0;
    virtual void frmField_ObjectEvent(const FieldEvent &Event) = 0;
};

// One control of a form, as its host sees it. Every control of a form has one: fields, frames, the tab control,
// navigators, call-ups. Not owned by what receives it.
class HostControl {
  public:
    virtual ~HostControl() = default;

    // Local to the form, for example "fldFrame2".
    [[nodiscard]] virtual QString Name() const = 0;
    // The control's class: "fldTextField", ..., "fldFrame", "Frame", "SSTab".
    [[nodiscard]] virtual QString TypeName() const = 0;
    // The control as a field; null where it is none (SSTab, Frame, fldSubFormCallUp, fldTrigger).
    [[nodiscard]] virtual Ifield *object() const = 0;
    // What a plain frame is headed with, translated; "" for every other control: a field knows its own.
    [[nodiscard]] virtual QString Caption() const { return {}; }
    // The control that holds this one; null when it stands on the form itself.
    [[nodiscard]] virtual HostControl *Container() const = 0;
    [[nodiscard]] virtual qint32 TabIndex() const = 0;
    // In twips, relative to the container; less 75000 while the control stands on a page that is not shown.
    [[nodiscard]] virtual qint32 Left() const = 0;
    [[nodiscard]] virtual bool Enabled() const = 0;
    [[nodiscard]] virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    [[nodiscard]] virtual bool TabStop() const = 0;
    virtual void SetTabStop(bool tabStop) = 0;
    virtual void SetFocus() = 0;
    // Null ends the subscription. At most one listener.
    virtual void SetListener(HostEvents *listener) = 0;
};

// The tab control of a form, beside HostControl. Pages count from 0.
class TabControl {
  public:
    virtual ~TabControl() = default;
    [[nodiscard]] virtual qint32 Tabs() const = 0;
    // The untranslated caption of the form's definition.
    [[nodiscard]] virtual QString SourceCaption(qint32 page) const = 0;
    virtual void SetCaption(qint32 page, const QString &caption) = 0;
    virtual void SelectPage(qint32 page) = 0;
};

// A form's controls in their order: depth-first by page, frame and reading order.
using HostControls = std::vector<HostControl *>;
