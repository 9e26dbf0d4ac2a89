#pragma once

#include "field_host.h"
#include "host_control.h"

#include <QStringList>

class QTabWidget;

// The tab control of a form, "SSTab1".
class TabHost final : public FieldHost, public TabControl {
  public:
    // captions: English, one a page.
    TabHost(QTabWidget &tabs, Place place, QStringList captions);

    [[nodiscard]] qint32 Tabs() const override { return qint32(mCaptions.size()); }
    [[nodiscard]] QString SourceCaption(qint32 page) const override;
    void SetCaption(qint32 page, const QString &caption) override;
    // A hidden page is passed over for the next that shows.
    void SelectPage(qint32 page) override;

  private:
    QStringList mCaptions;
    QPointer<QTabWidget> mTabs;
};
