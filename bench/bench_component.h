#pragma once

#include "component_listener.h"
#include "transformer_component.h"

#include <QTemporaryDir>

// A component in a folder of its own, with its journal on disk as a window has it, and a listener that answers Yes.
struct BenchComponent {
    BenchComponent()
        : transformer({.settingsFile = {},
                       .journalFolder = folder.filePath(QStringLiteral("state")),
                       .stateFolder = folder.filePath(QStringLiteral("state")),
                       .restoreFolder = folder.filePath(QStringLiteral("restore")),
                       .dataFolder = folder.path()}) {
        transformer.AddListener(&listener);
    }

    QTemporaryDir folder;
    ComponentListener listener;
    TransformerComponent transformer;
};
