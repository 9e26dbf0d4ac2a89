#pragma once

#include "unseen_control.h"

// A field or frame that nobody sees.
class UnseenField : public UnseenControl, public Ifield, public ComboItems, public IdItems, public SliderRange {
  public:
    UnseenField(const ControlDefinition &definition, HostControl *container, qint32 tabIndex);

    [[nodiscard]] Ifield *object() const override { return const_cast<UnseenField *>(this); }
    [[nodiscard]] bool Enabled() const override { return mEnabled; }

    void Ifield_Delete() override {}
    void Ifield_SelectAll() override {}
    void Ifield_Copy() override {}
    void Ifield_Paste() override {}
    void Ifield_Cut() override {}
    qint32 Ifield_GetEditOperations() override { return 0; }
    bool Ifield_GetVisible() const override { return mShown; }
    qint32 Ifield_GetHelpID() const override { return 0; }
    void Ifield_GetUIIDNotFound(bool NewUIIDNotFound) override { mNotFound = NewUIIDNotFound; }
    bool Ifield_GetUIIDNotFound() const override { return mNotFound || mUnknown; }
    // The component has no such field in the present tier, whatever it tells later.
    void SetUnknown() { mUnknown = true; }
    QVariant Ifield_GetValue() override { return mValue; }
    void Ifield_SetHelpID(qint32 /*HelpID*/) override {}
    void Ifield_SetWhatsThisHelpID(qint32 /*HelpID*/) override {}
    void Ifield_SetUIWidth(qint32 /*Width*/) override {}
    QVariant Ifield_SetName(const QString &Name) override;
    QString Ifield_GetName() const override { return mName; }
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override;
    void Ifield_SetRecordNumber(qint32 lngNewRecordNumber) override { mRecordNr = lngNewRecordNumber; }
    QString Ifield_GetUIID() const override { return mUIID; }
    void Ifield_SetUIID(const QString &UIID) override { mUIID = UIID; }
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override;
    void Ifield_SetInvisible() override;
    bool Ifield_GetEnabled() const override { return mEnabled; }
    void Ifield_UIIDNotFound() override;
    qint32 Ifield_GetRecordNr() const override { return mRecordNr; }
    QString Ifield_GetTypeName() const override { return TypeName(); }
    void Ifield_SetFocus() override {}
    qint32 Ifield_GetNavigatorStream() const override { return mStream; }
    void Ifield_Terminate() override { mWrapper.reset(); }
    std::shared_ptr<clsControlItem> Ifield_WrapperCtrlItem() const override { return mWrapper; }
    void Ifield_WrapperCtrlItem(const std::shared_ptr<clsControlItem> &objCtrlItem) override { mWrapper = objCtrlItem; }

    void Clear() override {}
    void AddItem(const QString & /*Text*/) override {}
    void AddItem(const QString & /*Text*/, const QVariant & /*Value*/) override {}
    void SetComboIndex(const QString & /*Map*/) override {}
    void SetMin(qint32 /*Min*/) override {}
    void SetMax(qint32 /*Max*/) override {}
    void SetStep(qint32 /*Step*/) override {}

  private:
    QString mUIID;
    QString mName; // the caption
    QVariant mValue;
    qint32 mRecordNr = 0;
    qint32 mStream = 0;
    bool mEnabled = true;
    bool mShown = true;
    bool mNotFound = false;
    bool mUnknown = false;
    std::shared_ptr<clsControlItem> mWrapper;
};
