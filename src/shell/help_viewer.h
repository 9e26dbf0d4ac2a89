#pragma once

#include "help_topics.h"

#include <QMainWindow>

#include <functional>

class HelpBrowser;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTreeWidget;

// The help window: on the left the contents, or what a search has found; on the right the page. It stands beside the
// main window and does not keep the program running.
class HelpViewer final : public QMainWindow {
    Q_OBJECT
  public:
    // folder: the pages, with their list of topics. translate: the window's own texts. A parent keeps the window above
    // itself and usable while the parent is modal.
    HelpViewer(const QString &folder, std::function<QString(const QString &)> translate, QWidget *parent);

    // place: "page.html" or "page.html#anchor", below the folder. False if there is no such page.
    bool ShowPlace(const QString &place);
    void ShowContents() { ShowPlace(QStringLiteral("index.html")); }
    // Gives the search the focus.
    void ShowSearch();
    [[nodiscard]] const QString &Folder() const { return mFolder; }
    // The place that is shown.
    [[nodiscard]] QString Place() const;

  protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void addActions();
    QWidget *sidePane();
    void setTexts();
    void fillContents();
    void find(const QString &text);
    void openHit();
    void markInContents();

    QString mFolder;
    HelpTopics mTopics;
    std::function<QString(const QString &)> mTranslate;
    HelpBrowser *mBrowser;
    QLineEdit *mSearch = nullptr;
    QStackedWidget *mPages = nullptr;
    QTreeWidget *mContents = nullptr;
    QListWidget *mHits = nullptr;
};
