#pragma once

#include "call_up_records.h"
#include "cls_ctl_fact.h"
#include "cls_tab_manager.h"
#include "form_controls.h"
#include "iusrfrm.h"
#include "window_services.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

class ControlRegistry;
class ctlFormEnabler;
struct FormDefinition;

// A configuration form: the controls that its definition declares, an enabler that fills them, and nothing else. All
// forms are of this class.
//
// Life: made, Build(), the enabler's InitialiseFields by the host, shown, UserControl_Show() by the host, and in the
// end Iusrfrm_Terminate() by the host before it is removed. A form may be closed from inside an event of its own field,
// so the host removes it with deleteLater().
class DataForm final : public QWidget, public Iusrfrm {
    Q_OBJECT
  public:
    // The definition and the references in services outlive the form.
    DataForm(const FormDefinition &definition, const FieldServices &services, QWidget *parent);
    ~DataForm() override;

    // Makes the controls and lays them out. Raises error 35601 if the registry cannot make one of them.
    void Build(const ControlRegistry &registry);
    // To be called once when the form has been made visible: first focus, first page, tab stops.
    void UserControl_Show();
    // "usrctlEconomyKX4600"
    [[nodiscard]] QString TypeName() const;
    // The design size: a form is never to be shown smaller.
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

    std::shared_ptr<Ienabler> Iusrfrm_Enabler() override;
    void Iusrfrm_Terminate() override;
    const HostControls &Iusrfrm_Controls() override { return mControls.All(); }
    HostControl *Iusrfrm_ActiveControl() override;

  protected:
    void resizeEvent(QResizeEvent *event) override;

  private:
    void layOut();
    void resizeControls();
    void showPage();
    void terminateFormControls();
    [[nodiscard]] bool keepsDesignSize() const;

    const FormDefinition &mDefinition;
    FieldServices mServices;
    ErrorReport &mErrors;
    FormControls mControls;
    std::shared_ptr<ctlFormEnabler> mEnabler;
    clsTabManager mTabManager;
    std::optional<CallUpRecords> mCallUps;
    std::vector<clsCtlFact> mFacts; // one for each control, in their order
    bool mTerminated = false;
};
