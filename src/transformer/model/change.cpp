#include "change.h"

namespace {

struct Inverter {
    Change operator()(const ValueStep &step) const {
        return ValueStep{step.field, step.record, step.after, step.before};
    }
    Change operator()(const InsertStep &step) const { return RemoveStep{step.structure, step.record, step.image}; }
    Change operator()(const RemoveStep &step) const { return InsertStep{step.structure, step.record, step.image}; }
    Change operator()(const MoveStep &step) const { return MoveStep{step.structure, step.parent, step.to, step.from}; }
};

} // namespace

Change inverse(const Change &change) { return std::visit(Inverter(), change); }

Changes inverse(const Changes &changes) {
    Changes result;
    result.reserve(changes.size());
    for (auto step = changes.rbegin(); step != changes.rend(); ++step)
        result.push_back(inverse(*step));
    return result;
}
