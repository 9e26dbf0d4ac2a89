#pragma once

#include "window_services.h"

class FormItems;
class Transformer;

// What every collaborator of the enabler works with.
class EnablerPart {
  protected:
    EnablerPart(FormItems &items, const FieldServices &services);
    // Raises error 91 before the component is made and after it has been shut down.
    [[nodiscard]] Transformer &component() const;

    FormItems &mItems;
    FieldServices mServices;
    ErrorReport &mErrors;
};
