#pragma once

#include "call_log.h"
#include "ienabler.h"
#include "iusrfrm.h"
#include "report_lines.h"
#include "shell_ports.h"

#include <QWidget>

#include <optional>

// An enabler that records its calls as "Enabler.<operation>" and answers what the test has put there.
class FakeEnabler final : public Ienabler {
  public:
    explicit FakeEnabler(CallLog &log) : mLog(log) {}

    bool okToLeave = true;
    bool valid = true;

    void Ienabler_RevertCurrentField() override { add("RevertCurrentField"); }
    void Ienabler_ForceSaveToCurrentField() override { add("ForceSaveToCurrentField"); }
    void Ienabler_RefreshGridByUIID(const QString &UIID) override { add("RefreshGridByUIID", {UIID}); }
    QString Ienabler_GetUIIDOfFieldWithFocus() override { return QStringLiteral("Focused"); }
    void Ienabler_SetEnableDisableByUIID(const QString &UIID, bool Enabled) override {
        add("SetEnableDisableByUIID", {UIID, Enabled});
    }
    void Ienabler_ClearWhatsThisHelpIDs() override { add("ClearWhatsThisHelpIDs"); }
    void Ienabler_SetWhatsThisHelpIDs() override { add("SetWhatsThisHelpIDs"); }
    bool Ienabler_OKToLeaveForm() override {
        add("OKToLeaveForm");
        return okToLeave;
    }
    std::shared_ptr<clsControlItem> Ienabler_GetActiveControl() override { return nullptr; }
    qint32 Ienabler_HelpContextID() override { return 77; }
    void Ienabler_InitialiseFields(qint32 lngRecordNr) override { add("InitialiseFields", {lngRecordNr}); }
    bool Ienabler_PrintForm(Iusrfrm & /*form*/, const QString &title, ReportLines &printDialog,
                            bool printAll) override {
        add("PrintForm", {title, printAll});
        return printDialog.PrintLine(title, true, false, false);
    }
    qint32 Ienabler_TextAlignment() override { return 0; }
    void Ienabler_UIIDNotFound(const QString &UIID) override { add("UIIDNotFound", {UIID}); }
    void Ienabler_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) override {
        add("UpdateUIFieldByUIID", {UIID, RecordNr, Value});
    }
    bool Ienabler_ValidateForm(bool blnClosingForm) override {
        add("ValidateForm", {blnClosingForm});
        return valid;
    }

  private:
    void add(const char *operation, const QVariantList &arguments = {}) {
        mLog.add(QStringLiteral("Enabler.") + QString::fromLatin1(operation), arguments);
    }
    CallLog &mLog;
};

class FakeForm final : public QWidget, public Iusrfrm {
  public:
    FakeForm(CallLog &log, std::shared_ptr<FakeEnabler> enabler, QWidget *parent)
        : QWidget(parent), mLog(log), mEnabler(std::move(enabler)) {}
    std::shared_ptr<Ienabler> Iusrfrm_Enabler() override { return mEnabler; }
    void Iusrfrm_Terminate() override { mLog.add(QStringLiteral("Form.Terminate")); }
    const HostControls &Iusrfrm_Controls() override { return mControls; }
    HostControl *Iusrfrm_ActiveControl() override { return nullptr; }

  private:
    CallLog &mLog;
    std::shared_ptr<FakeEnabler> mEnabler;
    HostControls mControls;
};

// Makes a fake form for any name; all share the enabler, so that a test can steer it before a form is there.
class FakeForms final : public FormFactoryInterface {
  public:
    explicit FakeForms(CallLog &log) : enabler(std::make_shared<FakeEnabler>(log)), mLog(log) {}

    std::shared_ptr<FakeEnabler> enabler;
    std::optional<RunTimeError> error; // raised instead of making a form

    QString missing; // the one form that cannot be made

    bool CanCreate(const QString &name) override { return name != missing; }
    HostedForm CreateForm(const QString &name, const FieldServices & /*services*/, QWidget *parent) override {
        mLog.add(QStringLiteral("CreateForm"), {name});
        if (error)
            throw *error;
        auto *form = new FakeForm(mLog, enabler, parent);
        form->hide();
        return {form, form, name};
    }
    std::unique_ptr<Iusrfrm> CreateUnseenForm(const QString &name, const FieldServices & /*services*/) override {
        mLog.add(QStringLiteral("CreateUnseenForm"), {name});
        return std::make_unique<FakeForm>(mLog, enabler, nullptr);
    }
    void UserControl_Show(const HostedForm & /*form*/) override { mLog.add(QStringLiteral("UserControl_Show")); }

  private:
    CallLog &mLog;
};
