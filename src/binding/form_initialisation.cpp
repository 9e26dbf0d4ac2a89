#include "form_initialisation.h"

#include "common_error_handler.h"
#include "field_initialisation.h"
#include "form_items.h"
#include "frame_contents.h"
#include "inavigator.h"
#include "initialising_fields_guard.h"
#include "message_style.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

namespace {
constexpr qint32 kStoredPosition = -1;
}

FormInitialisation::FormInitialisation(FormItems &items, const FieldServices &services, FieldInitialisation &fields,
                                       FrameContents &frames)
    : EnablerPart(items, services), mFields(fields), mFrames(frames) {}

void FormInitialisation::Ienabler_InitialiseFields(qint32 lngRecordNr) try {
    const InitialisingFieldsGuard guard(mServices.process);
    for (const ControlItemPtr &item : mItems.all())
        mFields.InitialiseField(item);
    // Only now: a navigator's move fills the fields of its stream, and a frame is hidden by what its fields became.
    positionNavigators(lngRecordNr);
    translatePageCaptions();
    showFilledFrames();
}
ERROR_TAIL()

void FormInitialisation::positionNavigators(qint32 recordNr) {
    for (const ControlItemPtr &item : mItems.ofType(FieldType::PageNavigator)) {
        if (item->Terminated())
            continue;
        if (recordNr == kStoredPosition)
            restorePosition(item);
        else
            item->as<Inavigator>().Inavigator_Position(recordNr);
    }
}

void FormInitialisation::restorePosition(const ControlItemPtr &item) {
    const QString storage = item->as<Inavigator>().Inavigator_StoragePositionUIID();
    if (storage.isEmpty()) {
        item->as<Inavigator>().Inavigator_Position(1);
        return;
    }
    const QVariant stored = component().GetValue(storage, 1);
    if (item->Terminated())
        return;
    if (ValueText::isUndefined(stored)) {
        mServices.boxes.MsgBox(QStringLiteral("Navigator position storage UIID is returning an undefined value"),
                               MessageStyle::kCritical, QStringLiteral("Unknown Error"));
        return;
    }
    item->as<Inavigator>().Inavigator_Position(ValueText::toInteger(stored));
}

void FormInitialisation::translatePageCaptions() {
    for (HostControl *control : mItems.controls()) {
        auto *const tab = dynamic_cast<TabControl *>(control);
        if (tab == nullptr)
            continue;
        for (qint32 page = 0; page < tab->Tabs(); ++page)
            tab->SetCaption(page, mServices.translation.NLSStr(tab->SourceCaption(page)));
    }
}

void FormInitialisation::showFilledFrames() {
    for (HostControl *control : mItems.controls()) {
        if (control != nullptr && isOneOf(fieldTypeOf(control->TypeName()), {FieldType::Frame, FieldType::PlainFrame}))
            control->SetVisible(mFrames.FrameHasVisibleFields(*control));
    }
}
