#pragma once

#include "host_control.h"
#include "navigator_watch.h"
#include "window_services.h"

#include <QVariant>

#include <memory>
#include <vector>

class Inavigator;

// What a sub-form's controls held when its window opened, and when each further record was first shown: what Cancel
// puts back.
class SubFormValues {
  public:
    // controls: of the form, which outlives this.
    SubFormValues(const HostControls &controls, const FieldServices &services);
    Q_DISABLE_COPY_MOVE(SubFormValues)

    // Keeps the values now shown, and from then on those of each record that a navigator brings. Navigators, grids,
    // frames, buttons and fields without a value at that time have none.
    void keep();
    // Puts every kept value back, control by control in their order: the record on show through its fields, the others
    // straight into the component, the one opened first last. What is refused stays as it is.
    void rollback();

  private:
    // One record as it was first shown.
    struct Kept {
        std::vector<qint32> positions;     // of the navigators, in their order
        std::vector<qint32> recordNumbers; // of each control
        std::vector<QVariant> values;      // of each control; invalid where it had none
    };

    [[nodiscard]] Kept present() const;
    [[nodiscard]] std::vector<qint32> positions() const;
    [[nodiscard]] bool isKept(const std::vector<qint32> &positions) const;
    void keepNewRecord();
    void putBack(const Kept &kept);
    [[nodiscard]] bool putIntoFields(const Kept &kept);
    void putIntoComponent(const Kept &kept);
    [[nodiscard]] QVariant stored(const Ifield &field, qint32 record) const;

    const HostControls &mControls;
    FieldServices mServices;
    std::vector<Inavigator *> mNavigators;
    std::vector<std::unique_ptr<NavigatorWatch>> mWatches;
    std::vector<Kept> mKept; // in the order of their first showing
};
