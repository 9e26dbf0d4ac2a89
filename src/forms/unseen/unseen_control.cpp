#include "unseen_control.h"

#include "control_classes.h"
#include "form_definition.h"

QString UnseenControl::Name() const { return mDefinition.name; }
QString UnseenControl::TypeName() const { return mDefinition.typeName; }

QVariant UnseenControl::property(const char *key) const {
    const QString name = QString::fromLatin1(key);
    const ControlClass *const type = ControlClasses::find(mDefinition.typeName);
    const bool known = type != nullptr && type->property(name) != nullptr;
    return known ? mDefinition.property(name) : QVariant();
}

void UnseenControl::raise(const FieldEvent &event) {
    if (mListener != nullptr)
        mListener->frmField_ObjectEvent(event);
}
