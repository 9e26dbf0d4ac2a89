#pragma once

#include "campaign.h"
#include "file_dialogs.h"
#include "window_services.h"

#include <QStringList>

class QWidget;
class frmMain;

// Message boxes that answer as a user in a hurry would: anything that their buttons offer.
class HastyBoxes final : public MessageBoxes {
  public:
    explicit HastyBoxes(Campaign::Random &random) : mRandom(random) {}
    [[nodiscard]] const QString &last() const { return mLast; }
    qint32 MsgBox(const QString &Text, qint32 Buttons, const QString &Title) override;
    qint32 TranslateMsgBox(const QString &Prompt, qint32 Buttons, const QString &Title,
                           const QString &Parameters) override;

  private:
    Campaign::Random &mRandom;
    QString mLast;
};

// File dialogs that choose one of a few files of a folder, or cancel.
class HastyFileDialogs final : public FileDialogs {
  public:
    HastyFileDialogs(Campaign::Random &random, const QString &folder) : mRandom(random), mFolder(folder) {}
    std::optional<FileDialogChoice> ShowLoad(const FileDialogRequest &request) override;
    std::optional<FileDialogChoice> ShowSave(const FileDialogRequest &request) override;

  private:
    Campaign::Random &mRandom;
    QString mFolder;
};

// A user who does anything anywhere in the program: types, presses keys, clicks what shows, runs commands. What opens a
// window with an event loop of its own is gone on with in that window.
class WindowWalk {
  public:
    WindowWalk(frmMain &window, Campaign::Random &random, Campaign::Tally &tally)
        : mWindow(window), mRandom(random), mTally(tally) {}

    void run(int actions);
    // The last actions, the newest last.
    [[nodiscard]] QString lastActions() const { return mLast.join(QStringLiteral("; ")); }

  private:
    void step();
    [[nodiscard]] static const QWidget *windowWithLoop();
    void act();
    void typeText();
    void pressKey();
    void clickAnything();
    void clickCell();
    void clickNode();
    void clickNode(const QString &text);
    void clickPage();
    void dragRows();
    void runCommand();
    void clickSubForm();
    void closeWindow();
    void did(const QString &what);

    // The window that takes the input: a popup, a modal window or any other.
    [[nodiscard]] QWidget &target();
    template <class Kind>
    [[nodiscard]] Kind *any(const QWidget &window, bool (*accepts)(const Kind &));
    [[nodiscard]] int below(qsizetype limit) { return int(Campaign::below(mRandom, limit)); }

    frmMain &mWindow;
    Campaign::Random &mRandom;
    Campaign::Tally &mTally;
    int mActionsLeft = 0;
    QStringList mLast;
};
