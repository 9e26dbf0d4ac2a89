#pragma once

#include "stored_positions.h"

#include <QString>

#include <memory>
#include <optional>

class ErrorReport;
class Ienabler;
class Iusrfrm;
class ReportLines;
struct FieldServices;
struct ProcessValues;

// One form that nobody sees, for as long as it is printed. It is filled as if it were opened; its enabler stands under
// the key "Print" and is the current one. Both are as before when the object goes, and so are the stored positions;
// the form is terminated then.
class PrintedForm {
  public:
    // All references outlive it.
    PrintedForm(const FieldServices &services, Iusrfrm &form);
    ~PrintedForm();
    PrintedForm(const PrintedForm &) = delete;
    PrintedForm &operator=(const PrintedForm &) = delete;

    // False after a failure that has been told.
    bool PrintTo(ReportLines &lines, const QString &title, bool printAll) const;

  private:
    void enter();
    void leave();
    void unload();

    ProcessValues &mProcess;
    ErrorReport &mErrors;
    Iusrfrm &mForm;
    std::shared_ptr<Ienabler> mEnabler;
    std::optional<StoredPositions> mPositions;
    QString mKeyBefore;
};
