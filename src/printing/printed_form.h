#pragma once

#include "report_form_shell.h"
#include "report_shell.h"
#include "stored_positions.h"

#include <QString>

#include <memory>
#include <optional>

class ErrorReport;
class Ienabler;

// One form, loaded without being shown, for as long as it is printed. Its enabler stands under the key "Print" and is
// the current one; both are as before when the object goes, and so are the stored positions.
class PrintedForm {
  public:
    // Makes the form as a child of parent and fills it. All references outlive it. Raises what making the form raises.
    PrintedForm(const FieldServices &services, ReportShell &shell, const QString &key, const QString &title,
                QWidget &parent);
    ~PrintedForm();
    PrintedForm(const PrintedForm &) = delete;
    PrintedForm &operator=(const PrintedForm &) = delete;

    [[nodiscard]] Iusrfrm &form() const { return *mForm.form; }
    [[nodiscard]] Ienabler &enabler() const { return *mEnabler; }

  private:
    void enter();
    void leave();
    void unload();

    ReportFormShell mFormShell;
    FieldServices mServices;
    ErrorReport &mErrors;
    InvisibleForm mForm;
    std::shared_ptr<Ienabler> mEnabler;
    std::optional<StoredPositions> mPositions;
    QString mKeyBefore;
};
