#include "printed_form.h"

#include "common_error_handler.h"
#include "ienabler.h"
#include "iusrfrm.h"
#include "process_values.h"

#include <QWidget>

namespace {
const QString kPrint = QStringLiteral("Print");
}

PrintedForm::PrintedForm(const FieldServices &services, ReportShell &shell, const QString &key, const QString &title,
                         QWidget &parent)
    : mFormShell(services.shell, key, title), mServices{services.process, services.translation, services.errors,
                                                        services.boxes,   services.clipboard,   mFormShell},
      mErrors(services.errors), mForm(shell.CreateForm(key, mServices, &parent)) {
    mForm.widget->setObjectName(QStringLiteral("usrfrmPrint"));
    enter();
}

PrintedForm::~PrintedForm() { leave(); }

void PrintedForm::enter() try {
    mEnabler = mForm.form->Iusrfrm_Enabler();
    mKeyBefore = mServices.process.CurrentEnablerKey;
    mServices.process.colEnablers.Add(mEnabler, kPrint);
    mServices.process.CurrentEnablerKey = kPrint;
    mPositions.emplace(*mServices.process.objTransformer, mForm.form->Iusrfrm_Controls());
    mEnabler->Ienabler_InitialiseFields(-1);
}
ERROR_TAIL_AS("OpenForm")

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
    mServices.process.colEnablers.Remove(kPrint);
    mServices.process.CurrentEnablerKey = mKeyBefore;
    mForm.form->Iusrfrm_Terminate();
    delete mForm.widget;
}
