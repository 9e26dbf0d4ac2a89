#include "enabler_part.h"

#include "process_values.h"
#include "run_time_error.h"

EnablerPart::EnablerPart(FormItems &items, const FieldServices &services)
    : mItems(items), mServices(services), mErrors(services.errors) {}

Transformer &EnablerPart::component() const {
    if (mServices.process.objTransformer == nullptr)
        throw RunTimeError(ErrorNumber::kMissingObject, QStringLiteral("ctlFormEnabler"),
                           QStringLiteral("Object variable not set"));
    return *mServices.process.objTransformer;
}
