#pragma once

#include "host_control.h"
#include "ifield.h"

struct ControlDefinition;

// A control of a form that nobody sees: what the enabler and a report need of it, without a widget. It keeps what it is
// told and raises no event of its own.
class UnseenControl : public HostControl {
  public:
    // container: null on the form itself. The definition outlives the control.
    UnseenControl(const ControlDefinition &definition, HostControl *container, qint32 tabIndex)
        : mDefinition(definition), mContainer(container), mTabIndex(tabIndex) {}

    [[nodiscard]] QString Name() const override;
    [[nodiscard]] QString TypeName() const override;
    [[nodiscard]] Ifield *object() const override { return nullptr; }
    [[nodiscard]] QString Caption() const override { return mCaption; }
    void SetCaption(const QString &caption) { mCaption = caption; }
    [[nodiscard]] HostControl *Container() const override { return mContainer; }
    [[nodiscard]] qint32 TabIndex() const override { return mTabIndex; }
    [[nodiscard]] qint32 Left() const override { return 0; }
    [[nodiscard]] bool Enabled() const override { return true; }
    [[nodiscard]] bool Visible() const override { return mVisible; }
    void SetVisible(bool visible) override { mVisible = visible; }
    [[nodiscard]] bool TabStop() const override { return false; }
    void SetTabStop(bool /*tabStop*/) override {}
    void SetFocus() override {}
    void SetListener(HostEvents *listener) override { mListener = listener; }

  protected:
    // The stored property or its class's default; Empty where the class has no such key.
    [[nodiscard]] QVariant property(const char *key) const;
    void raise(const FieldEvent &event);

  private:
    const ControlDefinition &mDefinition;
    HostControl *mContainer;
    qint32 mTabIndex;
    HostEvents *mListener = nullptr;
    QString mCaption; // of a plain frame
    bool mVisible = true;
};

// The tab control.
class UnseenTab final : public UnseenControl, public TabControl {
  public:
    using UnseenControl::UnseenControl;
    void AddPage(const QString &caption) { mCaptions.push_back(caption); }

    [[nodiscard]] qint32 Tabs() const override { return qint32(mCaptions.size()); }
    [[nodiscard]] QString SourceCaption(qint32 page) const override { return mCaptions.at(std::size_t(page)); }
    void SetCaption(qint32 /*page*/, const QString & /*caption*/) override {}
    void SelectPage(qint32 /*page*/) override {}

  private:
    std::vector<QString> mCaptions;
};
