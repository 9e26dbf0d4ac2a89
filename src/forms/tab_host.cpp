#include "tab_host.h"

#include "run_time_error.h"

#include <QTabWidget>

TabHost::TabHost(QTabWidget &tabs, Place place, QStringList captions)
    : FieldHost(tabs, std::move(place)), mCaptions(std::move(captions)), mTabs(&tabs) {}

QString TabHost::SourceCaption(qint32 page) const {
    if (page < 0 || page >= Tabs())
        throw RunTimeError(ErrorNumber::kIndexOutOfRange, QStringLiteral("TabHost"),
                           QStringLiteral("There is no page %1").arg(page));
    return mCaptions[page];
}

void TabHost::SetCaption(qint32 page, const QString &caption) {
    if (!mTabs.isNull())
        mTabs->setTabText(page, caption);
}

void TabHost::SelectPage(qint32 page) {
    if (mTabs.isNull())
        return;
    int shown = page;
    while (shown < mTabs->count() && !mTabs->isTabVisible(shown))
        ++shown;
    mTabs->setCurrentIndex(shown < mTabs->count() ? shown : page);
}
