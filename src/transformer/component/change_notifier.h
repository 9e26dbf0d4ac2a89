#pragma once

#include "component_state.h"
#include "field_queries.h"

#include <set>

// Tells the window what an edit of the current tier changed: first the new values, then the enabled states, then the
// grids that are to be filled anew, all before it returns.
class ChangeNotifier {
  public:
    ChangeNotifier(ComponentState &state, FieldQueries &fields) : mState(state), mFields(fields) {}

    // The field that the user has just set is left out where it shows the value already, and no grid shows it too.
    struct Origin {
        FieldIndex field;
        RecordAddress record;
        bool showsValue = false;
    };
    void raiseValues(const Changes &changes, const Origin &origin);
    // The enabled states that depend on the number or the content of these structures' records.
    void raiseAfterRecords(const Changes &changes);
    // After many edits of records at once: what is shown of them, and the grids of other structures that changed.
    void raiseAfterImport(const Changes &changes);

  private:
    struct Place {
        FieldIndex field;
        RecordAddress record;
        auto operator<=>(const Place &) const = default;
    };
    struct Effects {
        std::vector<Place> values;
        std::vector<Place> enables;
        std::set<QString> grids;
    };
    void collect(const ValueStep &step, Effects &effects);
    void addDependent(std::vector<Place> &places, FieldIndex dependent, const ValueStep &step, Effects &effects);
    [[nodiscard]] Place shownPlace(FieldIndex field, StructureIndex changed, RecordAddress record);
    void raise(const Effects &effects, const Origin *origin);

    ComponentState &mState;
    FieldQueries &mFields;
};
