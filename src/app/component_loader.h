#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class Transformer;

// Finds and loads the component's plug-in.
namespace ComponentLoader {
// The file of KX4600_TRANSFORMER alone where that is set; else the plug-in in the program's folder, its sub-folder
// "plugins" and ../lib/kx4600 beside it.
[[nodiscard]] QStringList candidates(const QString &programFolder);
// The component of the first candidate that exists. Raises error 5 with the reason where there is none or it does not
// load. The plug-in stays loaded to the end of the process.
[[nodiscard]] std::unique_ptr<Transformer> load(const QString &programFolder);
} // namespace ComponentLoader
