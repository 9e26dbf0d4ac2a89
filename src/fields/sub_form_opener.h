#pragma once

#include <QString>

class QWidget;
struct FieldServices;

// Which form a call-up opens, and on which record.
struct SubFormRequest {
    QString SubFormControlName; // for example "usrctlFreeFormatDetail"
    QString SubFormDescription; // the window's title, untranslated
    qint32 SubFormRecordNr = 0;
    QString FirstControl; // that gets the focus, by its name; "": the first one
};

// Opens sub-forms for the call-ups, which know nothing of forms.
class SubFormOpener {
  public:
    virtual ~SubFormOpener() = default;
    // Shows the form in its modal window above owner and returns when that has closed; the caller's own form may be
    // gone by then. Nothing while another sub-form is open. Raises error 35601 for an unknown form.
    virtual void OpenSubForm(const SubFormRequest &request, const FieldServices &services, QWidget *owner) = 0;
};
