#include "fld_trigger.h"

#include "common_error_handler.h"
#include "field_properties.h"
#include "process_values.h"
#include "transformer.h"
#include "translation.h"

#include <QPushButton>

namespace {
constexpr TwipSize kDefinitionSize{{1455}, {420}};
constexpr Twips kLeft{25};
constexpr Twips kTop{50};
constexpr Twips kHeight{315};
} // namespace

fldTrigger::fldTrigger(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : ButtonControl(services, QStringLiteral("Button1"), parent) {
    PropertyReader reader(properties);
    readCaption(reader, QStringLiteral("Execute"));
    mUIID = reader.text(QStringLiteral("ID"), QStringLiteral("Undefined"));
    reader.refuseUnknown();
    if (Transformer *component = services.process.objTransformer)
        button().setAccessibleDescription(services.translation.NLSStr(component->GetHelpText(mUIID)));
    connect(&button(), &QPushButton::clicked, this, &fldTrigger::Button1_Click);
    SetTabStop(true);
    SetControlSize(kDefinitionSize);
}

void fldTrigger::Button1_Click() {
    // The component may close the form.
    ErrorReport &errors = mErrors;
    try {
        if (Transformer *component = services().process.objTransformer)
            component->FireTrigger(mUIID);
    } catch (...) {
        errors.Tail("Button1_Click");
    }
}

TwipSize fldTrigger::SetControlSize(const TwipSize &size) {
    place({kLeft, kTop, size.width - kLeft, kHeight});
    resize(TwipScale::of(*this).toPixels(size));
    return size;
}
