#pragma once

#include "find_field_landing.h"
#include "find_field_search.h"

#include <memory>

class BusyPointer;
class frmFindField;

// The command behind Ctrl+F: one window, which stays for the next search.
class FindFieldCommand {
  public:
    // services: for the forms that are built to be searched.
    FindFieldCommand(const FieldServices &services, FormFactoryInterface &factory, BusyPointer &pointer,
                     const FindFieldLanding::Parts &parts);
    ~FindFieldCommand();
    Q_DISABLE_COPY_MOVE(FindFieldCommand)

    void mnuFindField_Click();

  private:
    [[nodiscard]] std::unique_ptr<frmFindField> makeWindow();

    FieldServices mServices;
    ErrorReport &mErrors;
    BusyPointer &mPointer;
    QWidget &mMain;
    FindFieldSearch mSearch;
    FindFieldLanding mLanding;
    std::unique_ptr<frmFindField> mFindWindow;
};
