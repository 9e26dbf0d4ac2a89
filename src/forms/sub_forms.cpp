#include "sub_forms.h"

#include "frm_sub_form.h"
#include "translation.h"
#include "window_services.h"

void SubForms::OpenSubForm(const SubFormRequest &request, const FieldServices &services, QWidget *owner) {
    if (!mOpen.isNull())
        return;
    frmSubForm window(mFactory, services, owner);
    mOpen = &window;
    window.setWindowTitle(services.translation.NLSStr(request.SubFormDescription));
    window.Tag(request.SubFormControlName);
    window.OpenSubForm(request.SubFormRecordNr, request.FirstControl);
}
