#include "call_up_records.h"

#include "field_host.h"
#include "fld_sub_form_call_up.h"
#include "ifield.h"
#include "inavigator.h"

#include <algorithm>

CallUpRecords::CallUpRecords(const std::vector<std::unique_ptr<FieldHost>> &hosts) {
    for (const std::unique_ptr<FieldHost> &host : hosts) {
        if (auto *callUp = qobject_cast<fldSubFormCallUp *>(host->Widget()))
            mCallUps.push_back(callUp);
    }
    if (mCallUps.empty())
        return;
    std::ranges::stable_sort(mCallUps, {}, [](const fldSubFormCallUp *callUp) { return callUp->SubFormRecordNr(); });
    for (const std::unique_ptr<FieldHost> &host : hosts) {
        const auto *navigator = dynamic_cast<Inavigator *>(host->object());
        if (navigator != nullptr)
            mWatches.push_back(std::make_unique<NavigatorWatch>(*host, [this, navigator] { follow(*navigator); }));
    }
}

void CallUpRecords::follow(const Inavigator &navigator) {
    const qint32 position = navigator.Inavigator_Position();
    if (position < 1)
        return;
    const auto share = qint32(mCallUps.size());
    for (qint32 k = 1; k <= share; ++k)
        mCallUps[std::size_t(k - 1)]->SubFormRecordNr((position - 1) * share + k);
}
