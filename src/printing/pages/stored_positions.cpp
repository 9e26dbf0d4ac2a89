#include "stored_positions.h"

#include "ifield.h"
#include "inavigator.h"
#include "transformer.h"
#include "value_text.h"

StoredPositions::StoredPositions(Transformer &component, const HostControls &controls) : mComponent(component) {
    for (const HostControl *control : controls) {
        const auto *const navigator = dynamic_cast<const Inavigator *>(control->object());
        if (navigator == nullptr || navigator->Inavigator_StoragePositionUIID().isEmpty())
            continue;
        const QString storage = navigator->Inavigator_StoragePositionUIID();
        mPositions.push_back({storage, ValueText::of(component.GetValue(storage, 1))});
    }
}

void StoredPositions::Restore() const {
    for (const Position &position : mPositions) {
        const qint32 before = ValueText::toIntegerOr(position.value, 0);
        bool accepted = false;
        if (before > 0 && ValueText::of(mComponent.GetValue(position.storage, 1)) != position.value)
            mComponent.SetValue(position.storage, before, 1, true, accepted);
    }
}
