#pragma once

#include "fake_forms.h"
#include "file_dialogs.h"
#include "form_nodes.h"
#include "frm_main.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <memory>

// File dialogs that nobody opens.
class NoFileDialogs final : public FileDialogs {
  public:
    std::optional<FileDialogChoice> ShowLoad(const FileDialogRequest &request) override { return refuse(request); }
    std::optional<FileDialogChoice> ShowSave(const FileDialogRequest &request) override { return refuse(request); }

  private:
    static std::optional<FileDialogChoice> refuse(const FileDialogRequest &request) {
        failTest(QStringLiteral("unexpected file dialog: ") + request.title);
        return std::nullopt;
    }
};

class RecordingSplash final : public SplashWindow {
  public:
    explicit RecordingSplash(CallLog &log) : mLog(log) {}
    void ShowSplash() override { mLog.add(QStringLiteral("ShowSplash")); }
    void RepaintSplash() override { mLog.add(QStringLiteral("RepaintSplash")); }
    void UnloadSplash() override { mLog.add(QStringLiteral("UnloadSplash")); }

  private:
    CallLog &mLog;
};

class RecordingProcess final : public ProcessControl {
  public:
    explicit RecordingProcess(CallLog &log) : mLog(log) {}
    void EndNow(int exitCode) override { mLog.add(QStringLiteral("EndNow"), {exitCode}); }
    void Pause(int milliseconds) override { mLog.add(QStringLiteral("Pause"), {milliseconds}); }

  private:
    CallLog &mLog;
};

// The main window on a double of the component with two tiers, "A" and "B", of seven nodes each:
// 1 Specifications, 2 Networks (group), 3 Basic Settings, 4 Alerts (level 60), 5 DTMF (group), 6 DTMF Patch, 7
// Channels.
class ShellFixture {
  public:
    explicit ShellFixture(const QStringList &arguments = {});
    ~ShellFixture();

    CallLog log;
    RecordingTransformer transformer{log};
    TestServices services{&transformer};
    FakeForms forms{log};
    NoFileDialogs fileDialogs;
    RecordingSplash splash{log};
    RecordingProcess process{log};
    std::unique_ptr<frmMain> window;

    // Runs start-up and forgets its calls.
    void load();
    [[nodiscard]] static FormLists lists();
    // As the component does when a tier is shown.
    void raiseChangeToTier(const QString &tierKey);
    // The calls since the last take, without those that only refresh ticks and command states.
    [[nodiscard]] QStringList takeMainCalls();

    template <class Widget>
    [[nodiscard]] Widget *find(const QString &name) const {
        return window->findChild<Widget *>(name);
    }
    [[nodiscard]] QString selectedText() const;
};
