#include "control_registry.h"

#include "field_properties.h"
#include "fld_checkbox_field.h"
#include "fld_combo_field.h"
#include "fld_frame.h"
#include "fld_grid_field.h"
#include "fld_id_tracker_field.h"
#include "fld_page_navigator.h"
#include "fld_slider_field.h"
#include "fld_text_field.h"
#include "fld_trigger.h"
#include "run_time_error.h"
#include "translation.h"
#include "window_services.h"

#include <QGroupBox>

namespace {
template <class Control>
QWidget *make(const FieldServices &services, const FieldProperties &properties, QWidget *parent) {
    return new Control(services, properties, parent);
}

// A plain frame takes no part in the fields' contract, so its caption is translated here.
QWidget *makePlainFrame(const FieldServices &services, const FieldProperties &properties, QWidget *parent) {
    PropertyReader reader(properties);
    const QString caption = reader.text(QStringLiteral("Caption"), {});
    reader.refuseUnknown();
    return new QGroupBox(services.translation.NLSStr(caption), parent);
}
} // namespace

ControlRegistry::ControlRegistry() {
    Add(QStringLiteral("fldTextField"), &make<fldTextField>);
    Add(QStringLiteral("fldComboField"), &make<fldComboField>);
    Add(QStringLiteral("fldCheckboxField"), &make<fldCheckboxField>);
    Add(QStringLiteral("fldIdTrackerField"), &make<fldIdTrackerField>);
    Add(QStringLiteral("fldGridField"), &make<fldGridField>);
    Add(QStringLiteral("fldPageNavigator"), &make<fldPageNavigator>);
    Add(QStringLiteral("fldSliderField"), &make<fldSliderField>);
    Add(QStringLiteral("fldTrigger"), &make<fldTrigger>);
    Add(QStringLiteral("fldFrame"), &make<fldFrame>);
    Add(QStringLiteral("Frame"), &makePlainFrame);
}

QWidget *ControlRegistry::Make(const QString &className, const FieldServices &services,
                               const FieldProperties &properties, QWidget *parent) const {
    const auto maker = mMakers.constFind(className);
    if (maker == mMakers.constEnd())
        throw RunTimeError(ErrorNumber::kCollectionKey, QStringLiteral("ControlRegistry"),
                           QStringLiteral("%1: %2: controls of the class %3 cannot be made")
                               .arg(properties.file, properties.control, className));
    return (*maker)(services, properties, parent);
}
