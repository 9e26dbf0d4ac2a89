#pragma once

#include "dictionary.h"
#include "radio_identity.h"
#include "sim_options.h"

#include <optional>

// The radio that the options ask for: its identity and its factory content.
struct RadioModel {
    RadioIdentity identity;
    QByteArray fresh; // one memory bank

    // Nothing where the dictionary has no such tier, band or version; problem then says which it has.
    [[nodiscard]] static std::optional<RadioModel> make(const Dictionary &dictionary, const SimOptions &options,
                                                        QString &problem);
};
