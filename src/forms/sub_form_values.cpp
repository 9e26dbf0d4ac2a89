#include "sub_form_values.h"

#include "ifield.h"
#include "igrid.h"
#include "inavigator.h"
#include "process_values.h"
#include "transformer.h"
#include "value_text.h"

#include <algorithm>

namespace {
// The field that a control's value stands in; null for what has none of its own.
Ifield *valueField(const HostControl &control) {
    Ifield *field = control.object();
    if (field == nullptr || field->Ifield_GetUIIDNotFound() || ValueText::isUndefined(field->Ifield_GetUIID()))
        return nullptr;
    const bool manyValues = NavigatorWatch::isNavigator(control) || dynamic_cast<Igrid *>(field) != nullptr;
    return manyValues ? nullptr : field;
}
} // namespace

SubFormValues::SubFormValues(const HostControls &controls, const FieldServices &services)
    : mControls(controls), mServices(services) {
    for (HostControl *control : mControls) {
        if (auto *navigator = dynamic_cast<Inavigator *>(control->object()))
            mNavigators.push_back(navigator);
    }
}

void SubFormValues::keep() {
    mKept = {present()};
    for (HostControl *control : mControls) {
        if (NavigatorWatch::isNavigator(*control))
            mWatches.push_back(std::make_unique<NavigatorWatch>(*control, [this] { keepNewRecord(); }));
    }
}

std::vector<qint32> SubFormValues::positions() const {
    std::vector<qint32> result;
    for (const Inavigator *navigator : mNavigators)
        result.push_back(navigator->Inavigator_Position());
    return result;
}

bool SubFormValues::isKept(const std::vector<qint32> &positions) const {
    return std::ranges::find(mKept, positions, &Kept::positions) != mKept.end();
}

void SubFormValues::keepNewRecord() {
    if (!mKept.empty() && !isKept(positions()))
        mKept.push_back(present());
}

QVariant SubFormValues::stored(const Ifield &field, qint32 record) const {
    Transformer *component = mServices.process.objTransformer;
    return component == nullptr ? ValueText::undefined() : component->GetValue(field.Ifield_GetUIID(), record);
}

SubFormValues::Kept SubFormValues::present() const {
    Kept kept;
    kept.positions = positions();
    for (const HostControl *control : mControls) {
        Ifield *field = valueField(*control);
        const qint32 record = field == nullptr ? 0 : field->Ifield_GetRecordNr();
        const bool none = field == nullptr || ValueText::isUndefined(stored(*field, record));
        kept.recordNumbers.push_back(record);
        kept.values.push_back(none ? QVariant() : field->Ifield_GetValue());
    }
    return kept;
}

void SubFormValues::rollback() {
    mWatches.clear();
    for (std::size_t i = 1; i < mKept.size(); ++i)
        putBack(mKept[i]);
    if (!mKept.empty())
        putBack(mKept.front());
}

void SubFormValues::putBack(const Kept &kept) {
    if (kept.positions != positions())
        putIntoComponent(kept);
    else if (!putIntoFields(kept))
        static_cast<void>(putIntoFields(kept)); // what had to wait for a later control
}

// False: something was refused, or has no value until another control has got its own back.
bool SubFormValues::putIntoFields(const Kept &kept) {
    bool taken = true;
    for (std::size_t i = 0; i < mControls.size(); ++i) {
        Ifield *field = kept.values[i].isValid() ? valueField(*mControls[i]) : nullptr;
        if (field == nullptr)
            continue;
        const bool exists = !ValueText::isUndefined(stored(*field, kept.recordNumbers[i]));
        taken = exists && field->Ifield_SetValue(kept.values[i], true) && taken;
    }
    return taken;
}

void SubFormValues::putIntoComponent(const Kept &kept) {
    for (std::size_t i = 0; i < mControls.size(); ++i) {
        const Ifield *field = kept.values[i].isValid() ? valueField(*mControls[i]) : nullptr;
        if (field == nullptr)
            continue;
        const QVariant now = stored(*field, kept.recordNumbers[i]);
        bool accepted = false;
        if (!ValueText::isUndefined(now) && ValueText::of(now) != ValueText::of(kept.values[i]))
            mServices.process.objTransformer->SetValue(field->Ifield_GetUIID(), kept.values[i], kept.recordNumbers[i],
                                                       true, accepted);
    }
}
