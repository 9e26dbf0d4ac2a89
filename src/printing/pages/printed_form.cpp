#include "printed_form.h"

#include "common_error_handler.h"
#include "ienabler.h"
#include "iusrfrm.h"
#include "process_values.h"
#include "window_services.h"

namespace {
const QString kPrint = QStringLiteral("Print");
}

PrintedForm::PrintedForm(const FieldServices &services, Iusrfrm &form)
    : mProcess(services.process), mErrors(services.errors), mForm(form), mEnabler(form.Iusrfrm_Enabler()),
      mKeyBefore(services.process.CurrentEnablerKey) {
    enter();
}

PrintedForm::~PrintedForm() { leave(); }

void PrintedForm::enter() try {
    mProcess.colEnablers.Add(mEnabler, kPrint);
    mProcess.CurrentEnablerKey = kPrint;
    mPositions.emplace(*mProcess.objTransformer, mForm.Iusrfrm_Controls());
    mEnabler->Ienabler_InitialiseFields(-1);
}
ERROR_TAIL_AS("OpenForm")

bool PrintedForm::PrintTo(ReportLines &lines, const QString &title, bool printAll) const {
    return mEnabler->Ienabler_PrintForm(mForm, title, lines, printAll);
}

// The positions first: the form must hear of them, as its grids may depend on them.
void PrintedForm::leave() try {
    if (mPositions)
        mPositions->Restore();
    unload();
} catch (...) {
    unload();
    mErrors.Tail("OpenForm");
}

void PrintedForm::unload() {
    mProcess.colEnablers.Remove(kPrint);
    mProcess.CurrentEnablerKey = mKeyBefore;
    mForm.Iusrfrm_Terminate();
}
