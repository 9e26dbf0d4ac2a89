#pragma once

#include "fake_control.h"

#include <QStringList>
#include <utility>

// A tab control (SSTab) without pages' widgets.
class FakeTab final : public FakeControl, public TabControl {
  public:
    FakeTab(CallLog &log, const QString &name, QStringList sourceCaptions)
        : FakeControl(log, name, QStringLiteral("SSTab")), captions(sourceCaptions),
          mSourceCaptions(std::move(sourceCaptions)) {}

    QStringList captions; // as shown

    [[nodiscard]] qint32 Tabs() const override { return qint32(mSourceCaptions.size()); }
    [[nodiscard]] QString SourceCaption(qint32 page) const override { return mSourceCaptions.at(page); }
    void SetCaption(qint32 page, const QString &caption) override { captions[page] = caption; }
    void SelectPage(qint32 page) override { log("SelectPage", {page}); }

  private:
    QStringList mSourceCaptions;
};
