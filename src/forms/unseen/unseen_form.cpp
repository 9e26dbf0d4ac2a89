#include "unseen_form.h"

#include "ctl_form_enabler.h"
#include "form_definition.h"
#include "process_values.h"
#include "transformer.h"
#include "translation.h"
#include "unseen_grid.h"
#include "unseen_navigator.h"

#include <map>

UnseenForm::UnseenForm(const FormDefinition &definition, const FieldServices &services)
    : mServices(services), mEnabler(std::make_shared<ctlFormEnabler>(mControls, services, [] { return nullptr; })) {
    std::map<const ControlDefinition *, HostControl *> made;
    for (const PlacedControl &placed : definition.placedControls()) {
        HostControl *const container = placed.parent == nullptr ? nullptr : made.at(placed.parent);
        mOwned.push_back(make(definition, placed, container));
        mControls.push_back(mOwned.back().get());
        made.emplace(placed.control, mControls.back());
    }
    mEnabler->AccessControls();
}

UnseenForm::~UnseenForm() { Iusrfrm_Terminate(); }

std::unique_ptr<UnseenControl> UnseenForm::make(const FormDefinition &definition, const PlacedControl &placed,
                                                HostControl *container) const {
    const ControlDefinition &control = *placed.control;
    switch (fieldTypeOf(control.typeName)) {
    case FieldType::Tab: {
        auto tab = std::make_unique<UnseenTab>(control, container, placed.tabIndex);
        for (const PageDefinition &page : definition.pages)
            tab->AddPage(page.caption);
        return tab;
    }
    case FieldType::Grid:
        return std::make_unique<UnseenGrid>(control, container, placed.tabIndex, mServices);
    case FieldType::PageNavigator:
        return std::make_unique<UnseenNavigator>(control, container, placed.tabIndex);
    case FieldType::PlainFrame: {
        auto frame = std::make_unique<UnseenControl>(control, container, placed.tabIndex);
        frame->SetCaption(mServices.translation.NLSStr(control.caption()));
        return frame;
    }
    case FieldType::Other:
        return std::make_unique<UnseenControl>(control, container, placed.tabIndex);
    default: {
        auto field = std::make_unique<UnseenField>(control, container, placed.tabIndex);
        const QString uiid = field->Ifield_GetUIID();
        if (!uiid.isEmpty() && mServices.process.objTransformer->GetLabel(uiid).isEmpty())
            field->SetUnknown();
        return field;
    }
    }
}

std::shared_ptr<Ienabler> UnseenForm::Iusrfrm_Enabler() { return mEnabler; }

void UnseenForm::Iusrfrm_Terminate() {
    for (HostControl *control : mControls) {
        if (Ifield *const field = control->object())
            field->Ifield_Terminate();
    }
    mEnabler->UserControl_Terminate();
}
