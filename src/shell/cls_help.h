#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

class HelpViewer;
class MessageBoxes;

// The help window behind the names of the help interface. The last help file opened stays in its window; another file
// opens a new one. What cannot be done is told under the title "HTML Help Class".
class clsHelp {
  public:
    // makeViewer(folder, parent) makes the window, hidden; empty: no help is installed.
    using MakeViewer = std::function<HelpViewer *(const QString &folder, QWidget *parent)>;
    clsHelp(MessageBoxes &boxes, MakeViewer makeViewer);
    ~clsHelp();
    Q_DISABLE_COPY_MOVE(clsHelp)

    // With HHShowOnTop the window stays above the form, which must then be given.
    void HHDisplaySearch(QWidget *form = nullptr);
    void HHDisplayContents(QWidget *form = nullptr);
    // False if the help has no such page ("page.html", "page.html#anchor").
    bool HHDisplayPlace(const QString &place, QWidget *form = nullptr);

    // The name of the window's kind; kept, it chooses nothing.
    [[nodiscard]] const QString &HHWindow() const { return mWindow; }
    void HHWindow(const QString &name) { mWindow = name; }
    // The logical file with its folder, "/usr/bin/kx4kp_en.chm"; its pages stand in the folder of that name.
    [[nodiscard]] const QString &CHMFile() const { return mFile; }
    void CHMFile(const QString &file) { mFile = file; }
    [[nodiscard]] bool HHShowOnTop() const { return mShowOnTop; }
    void HHShowOnTop(bool onTop) { mShowOnTop = onTop; }
    // The handle of the last window opened; 0, after a message, when there is none any more.
    [[nodiscard]] WId HHWndHandle() const;
    // That window; null when none is open.
    [[nodiscard]] HelpViewer *Viewer() const;

  private:
    HelpViewer *viewer(QWidget *form);
    void show(HelpViewer &viewer);
    void report(const QString &text) const;

    MessageBoxes &mBoxes;
    MakeViewer mMakeViewer;
    QPointer<HelpViewer> mViewer;
    QString mWindow;
    QString mFile;
    bool mShowOnTop = false;
    bool mOpened = false; // at least once
};
