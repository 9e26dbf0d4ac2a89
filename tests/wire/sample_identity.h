#pragma once

#include "radio_identity.h"

// A radio as the worked examples of the protocol have it; tests change what they need.
[[nodiscard]] inline RadioIdentity sampleIdentity() {
    return {.tier = 2,
            .band = 1,
            .databaseLevel = 2,
            .layout = 1,
            .maxBlock = 4096,
            .serialNumber = 46000001,
            .imageSize = 137872,
            .highSpeed = true,
            .hardwareRevision = 3,
            .softwareMajor = 2,
            .softwareMinor = 1,
            .softwareRevision = 7,
            .productCode = QStringLiteral("KX4600-A1")};
}
