#pragma once

#include "radio_report.h"

#include <QString>

#include <vector>

class Dictionary;

// What this program knows of the radio family, and whether a radio fits it.
class RadioCompatibility {
  public:
    explicit RadioCompatibility(const Dictionary &dictionary); // outlives this object

    // Of the data that is to be programmed: place of its tier, stored value of its band, its version level.
    struct Data {
        quint8 tier = 0;
        quint8 band = 0;
        quint8 databaseLevel = 0;
    };

    // Throws LinkFailure for a radio whose content cannot be understood.
    void checkReadable(const RadioIdentity &radio) const;
    // As checkReadable, and for a radio that is not to get the data. Details are shown values, the radio's first.
    void checkProgrammable(const RadioIdentity &radio, const Data &data) const;

    [[nodiscard]] QString tierName(quint8 tier) const;
    [[nodiscard]] QString bandName(quint8 band) const;
    [[nodiscard]] QString versionName(quint8 level) const;

  private:
    const Dictionary &mDictionary;
};
