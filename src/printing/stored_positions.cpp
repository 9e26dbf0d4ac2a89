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
        const bool moved = ValueText::of(mComponent.GetValue(position.storage, 1)) != position.value;
        bool accepted = false;
        if (moved && ValueText::isNumeric(position.value))
            mComponent.SetValue(position.storage, ValueText::toInteger(position.value), 1, true, accepted);
    }
}
