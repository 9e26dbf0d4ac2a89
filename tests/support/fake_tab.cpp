#include "fake_tab.h"

#include <utility>

FakeTab::FakeTab(CallLog &log, const QString &name, QStringList sourceCaptions)
    : FakeControl(log, name, QStringLiteral("SSTab")), captions(sourceCaptions),
      mSourceCaptions(std::move(sourceCaptions)) {}
