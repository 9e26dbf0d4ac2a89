#pragma once

#include "button_control.h"
#include "sub_form_call_up.h"
#include "sub_form_opener.h"

struct FieldProperties;

// A button that opens another form in a modal window, for one record.
//
// Properties: SubFormControlName (""), SubFormDescription (""), SubFormRecordNr (0), Caption ("Details").
class fldSubFormCallUp final : public ButtonControl, public SubFormCallUp {
    Q_OBJECT
  public:
    // opener outlives the control.
    fldSubFormCallUp(const FieldServices &services, const FieldProperties &properties, SubFormOpener &opener,
                     QWidget *parent);

    [[nodiscard]] qint32 SubFormRecordNr() const { return mRequest.SubFormRecordNr; }
    // The number goes to the sub-form as it is.
    void SubFormRecordNr(qint32 record) { mRequest.SubFormRecordNr = record; }

    [[nodiscard]] QString CalledForm() const override { return mRequest.SubFormControlName; }
    void CallUp(const QString &firstControl) override;

    // The button keeps its height; the control is as large as the button and the gap above it.
    TwipSize SetControlSize(const TwipSize &size) override;

  private:
    void cmdCallUp_Click();

    SubFormOpener &mOpener;
    SubFormRequest mRequest;
};
