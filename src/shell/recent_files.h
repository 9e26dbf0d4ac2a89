#pragma once

#include "document_commands.h"

#include <QStringList>

#include <functional>
#include <vector>

class MainMenu;
class QAction;

// The recent files as entries of the File menu, numbered from 1.
class RecentFiles final : public RecentFilesMenu {
  public:
    explicit RecentFiles(MainMenu &menu);
    void SetRecentFiles(const QStringList &captions) override;
    // Called with the number of the chosen entry.
    void SetClicked(std::function<void(qint32)> clicked);

  private:
    MainMenu &mMenu;
    std::function<void(qint32)> mClicked;
    std::vector<QAction *> mEntries;
};
