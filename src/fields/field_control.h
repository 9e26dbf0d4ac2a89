#pragma once

#include "field_event.h"
#include "hosted_control.h"
#include "ifield.h"
#include "window_services.h"

#include <QPointer>
#include <QWidget>

class PropertyReader;
class Transformer;

// What every control with an Ifield has: its identity, its record, its help numbers, its link to the enabler, and the
// way in which it raises events. Controls of the records side (grid, navigator) stand on it too.
class FieldControl : public QWidget, public Ifield, public HostedControl {
    Q_OBJECT
  public:
    // The references in services outlive the control.
    FieldControl(const FieldServices &services, QWidget *parent);

    // The number that What's This asks for; 0 while it is cleared.
    [[nodiscard]] qint32 WhatsThisHelpID() const { return mWhatsThisHelpID; }

    void Ifield_Delete() override {}
    void Ifield_SelectAll() override {}
    void Ifield_Copy() override {}
    void Ifield_Paste() override {}
    void Ifield_Cut() override {}
    qint32 Ifield_GetEditOperations() override { return 0; }
    bool Ifield_GetVisible() const override { return mVisible; }
    qint32 Ifield_GetHelpID() const override { return mHelpID; }
    void Ifield_GetUIIDNotFound(bool NewUIIDNotFound) override { mUIIDNotFound = NewUIIDNotFound; }
    bool Ifield_GetUIIDNotFound() const override { return mUIIDNotFound; }
    // Also gives the field its help text as accessible description.
    void Ifield_SetHelpID(qint32 HelpID) override;
    void Ifield_SetWhatsThisHelpID(qint32 HelpID) override { mWhatsThisHelpID = HelpID; }
    void Ifield_SetUIWidth(qint32 /*Width*/) override {}
    void Ifield_SetRecordNumber(qint32 lngNewRecordNumber) override { mRecordNr = lngNewRecordNumber; }
    QString Ifield_GetUIID() const override { return mUIID; }
    void Ifield_SetUIID(const QString &UIID) override { mUIID = UIID; }
    qint32 Ifield_GetRecordNr() const override { return mRecordNr; }
    qint32 Ifield_GetNavigatorStream() const override { return mNavigatorStream; }
    void Ifield_Terminate() override;
    std::shared_ptr<clsControlItem> Ifield_WrapperCtrlItem() const override { return mWrapper; }
    void Ifield_WrapperCtrlItem(const std::shared_ptr<clsControlItem> &objCtrlItem) override { mWrapper = objCtrlItem; }

    [[nodiscard]] Ifield *AsField() override { return this; }
    void SetHostEvents(HostEvents *listener) override { mHostEvents = listener; }
    [[nodiscard]] bool TabStop() const override { return mTabStop; }
    void SetTabStop(bool tabStop) override;
    void FocusControl() override { Ifield_SetFocus(); }

  protected:
    // "ID", "NavigatorStream".
    void readIdentity(PropertyReader &reader);
    // Raises the event to the control's item. Nothing happens before a listener is set and after Ifield_Terminate. The
    // form may be closed inside: look at isTerminated() before touching anything more of it.
    void raise(const FieldEvent &event);
    // "ManualValidate". True: not cancelled.
    [[nodiscard]] bool raiseManualValidate();
    [[nodiscard]] bool isTerminated() const { return mTerminated; }
    [[nodiscard]] HostEvents *hostEvents() const { return mHostEvents; }
    // Raises error 91 before the component is made.
    [[nodiscard]] Transformer &component() const;
    [[nodiscard]] const FieldServices &services() const { return mServices; }
    void setShown(bool visible) { mVisible = visible; }
    // The widget that is edited and bears the accessible name; null where there is none.
    [[nodiscard]] virtual QWidget *editingPart() const { return nullptr; }
    // The record that a value belongs to where no enabler is asked: the shown one, or 1 without a navigator.
    [[nodiscard]] qint32 shownRecord() const { return mNavigatorStream == 0 ? 1 : mRecordNr; }
    // Whether an unknown UIID is marked in the caption: in a development run, outside any navigator.
    [[nodiscard]] bool strikesOutUnknown() const;
    void changeEvent(QEvent *event) override;
    // Gives the parts their colours again after a change of palette.
    virtual void applyColours() {}

    ErrorReport &mErrors;

  private:
    FieldServices mServices;
    HostEvents *mHostEvents = nullptr;
    std::shared_ptr<clsControlItem> mWrapper;
    QString mUIID;
    qint32 mNavigatorStream = 0;
    qint32 mRecordNr = 0;
    qint32 mHelpID = 0;
    qint32 mWhatsThisHelpID = 0;
    bool mUIIDNotFound = false;
    bool mVisible = true;
    bool mTabStop = true;
    bool mTerminated = false;
};
