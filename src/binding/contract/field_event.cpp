#include "field_event.h"

void EventParameter::raiseMismatch() {
    throw RunTimeError(ErrorNumber::kConversion, QStringLiteral("FieldEvent"), QStringLiteral("Type mismatch"));
}

const EventParameter &FieldEvent::parameterAt(std::size_t position) const {
    if (position >= mParameters.size())
        throw RunTimeError(ErrorNumber::kIndexOutOfRange, QStringLiteral("FieldEvent"),
                           QStringLiteral("Subscript out of range"));
    return mParameters[position];
}
