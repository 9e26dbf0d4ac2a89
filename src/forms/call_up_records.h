#pragma once

#include "navigator_watch.h"

#include <memory>
#include <vector>

class FieldHost;
class fldSubFormCallUp;
class Inavigator;

// The call-ups of a form with a navigator open the records that belong to its record: n call-ups share out a flat
// table, n records to each record of the form, in the order of their numbers.
class CallUpRecords {
  public:
    // hosts: the form's controls, with their items; they outlive this.
    explicit CallUpRecords(const std::vector<std::unique_ptr<FieldHost>> &hosts);
    Q_DISABLE_COPY_MOVE(CallUpRecords)

  private:
    void follow(const Inavigator &navigator);

    std::vector<fldSubFormCallUp *> mCallUps; // in the order of their record numbers
    std::vector<std::unique_ptr<NavigatorWatch>> mWatches;
};
