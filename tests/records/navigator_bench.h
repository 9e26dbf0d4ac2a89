#pragma once

#include "field_properties.h"
#include "fld_page_navigator.h"
#include "host_control.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

class ComboList;
class NavigatorSlider;
class QPushButton;

// Hears a navigator in the enabler's place: each event becomes "<name>" or "<name> <position>".
class NavigatorListener final : public HostEvents {
  public:
    QStringList heard;
    bool acceptsPosition = true;
    bool formIsValid = true;
    std::function<void(const QString &)> on; // runs inside each event, with its name

    void frmField_GotFocus() override {}
    void frmField_LostFocus() override {}
    void frmField_Validate(bool & /*Cancel*/) override {}
    void frmField_ObjectEvent(const FieldEvent &Event) override;
};

// A navigator on a window before the recording component. Its records are named "Alpha1", "Alpha2" ... in the field
// "Name", its position is stored in "Stored", its stream is 3.
class NavigatorBench {
  public:
    // More properties than these, or others.
    explicit NavigatorBench(const QVariantMap &properties = {}, QWidget *parent = nullptr);

    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    QWidget window;
    NavigatorListener listener;
    std::unique_ptr<fldPageNavigator> navigator;

    // The component has that many records, and the navigator is told so.
    void setRecords(qint32 count);
    // Opened as a form opens it: counted, then moved to its stored position; forgets what was heard.
    void open(qint32 count, qint32 position);
    QStringList takeHeard();

    [[nodiscard]] NavigatorSlider &slider() const;
    [[nodiscard]] ComboList &list() const;
    [[nodiscard]] QPushButton &button(const char *name) const;
};
