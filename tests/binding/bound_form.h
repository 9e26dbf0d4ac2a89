#pragma once

#include "call_log.h"
#include "ctl_form_enabler.h"
#include "fake_combo.h"
#include "fake_field.h"
#include "fake_grid.h"
#include "fake_id_tracker.h"
#include "fake_navigator.h"
#include "fake_slider.h"
#include "fake_tab.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

// A form of doubles with a real enabler on it, in front of the recording component. Component and fields write one log.
class BoundForm {
  public:
    BoundForm();
    ~BoundForm();
    BoundForm(const BoundForm &) = delete;
    BoundForm &operator=(const BoundForm &) = delete;

    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    HostControls controls;
    HostControl *active = nullptr; // the control with the focus
    std::shared_ptr<ctlFormEnabler> enabler;

    // Adds a control behind the others; its tab index is its place.
    template <class Control, class... Arguments>
    Control &add(Arguments &&...arguments) {
        auto control = std::make_unique<Control>(log, std::forward<Arguments>(arguments)...);
        Control &added = *control;
        added.tabIndex = qint32(controls.size());
        controls.push_back(control.get());
        mOwned.push_back(std::move(control));
        return added;
    }
    FakeField &addText(const QString &name) { return add<FakeField>(name, QStringLiteral("fldTextField")); }
    FakeField &addCheckbox(const QString &name) { return add<FakeField>(name, QStringLiteral("fldCheckboxField")); }

    // Makes the items and forgets the log so far.
    void bind();
    [[nodiscard]] ControlItemPtr itemOf(const FakeField &field) const { return field.Ifield_WrapperCtrlItem(); }
    // What a form does when it is closed: its fields and its enabler end. The controls stay, as a real form's do until
    // the stack has unwound.
    void close();

  private:
    std::vector<std::unique_ptr<FakeControl>> mOwned;
};

// Bound, with a text field "txtName" or a list "cboTone".
struct TextForm : BoundForm {
    TextForm() { bind(); }
    FakeField &text = addText(QStringLiteral("txtName"));
};
struct ComboForm : BoundForm {
    ComboForm() { bind(); }
    FakeCombo &combo = add<FakeCombo>(QStringLiteral("cboTone"));
};
