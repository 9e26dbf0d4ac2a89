#include "record_errors.h"

#include "common_error_handler.h"

void passMissingObject(ErrorReport &errors, const char *procedure) {
    RunTimeError error = ErrorReport::Current();
    if (error.Number != ErrorNumber::kMissingObject) {
        errors.Tail(procedure);
        return;
    }
    ErrorReport::AddErrorContext(error, QString::fromLatin1(procedure));
    throw RunTimeError(error);
}
