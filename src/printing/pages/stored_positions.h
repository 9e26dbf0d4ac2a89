#pragma once

#include "host_control.h"

#include <QString>

#include <vector>

class Transformer;

// The stored positions of a form's navigators, to be put back when a report has moved them: the user's own form, on
// which they may stand too, then shows the record that it showed before.
class StoredPositions {
  public:
    // Reads them. The component outlives this object.
    StoredPositions(Transformer &component, const HostControls &controls);
    // Writes back those that have changed, in the order of the navigators; one that stood on no record has no way back.
    void Restore() const;

  private:
    struct Position {
        QString storage; // UIID
        QString value;
    };
    Transformer &mComponent;
    std::vector<Position> mPositions;
};
