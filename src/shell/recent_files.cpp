#include "recent_files.h"

#include "main_menu.h"

#include <QAction>
#include <QMenu>

#include <utility>

RecentFiles::RecentFiles(MainMenu &menu) : mMenu(menu) {}

void RecentFiles::SetClicked(std::function<void(qint32)> clicked) { mClicked = std::move(clicked); }

void RecentFiles::SetRecentFiles(const QStringList &captions) {
    const QString name = QStringLiteral("mnuRecentFiles");
    QMenu &menu = mMenu.Menu(name);
    // Entries are kept and hidden, since this may run from inside one's own click.
    while (mEntries.size() < std::size_t(captions.size())) {
        const auto index = qint32(mEntries.size()) + 1;
        QAction *entry = menu.addAction(QString());
        entry->setObjectName(QStringLiteral("mnuItemsRecent(%1)").arg(index));
        QObject::connect(entry, &QAction::triggered, &menu, [this, index] { mClicked(index); });
        mEntries.push_back(entry);
    }
    for (std::size_t i = 0; i < mEntries.size(); ++i) {
        mEntries[i]->setText(captions.value(qsizetype(i)));
        mEntries[i]->setVisible(qsizetype(i) < captions.size());
    }
    mMenu.SetVisible(name, !captions.isEmpty());
}
