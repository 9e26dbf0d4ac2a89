#pragma once

#include "bench_component.h"

#include <QString>

// A component with full data of a tier, and the file that they were saved to. Raises RunTimeError when one of them
// cannot be made.
class FullFile {
  public:
    explicit FullFile(const QString &tier = QStringLiteral("Advanced"));

    [[nodiscard]] const QString &path() const { return mPath; }
    [[nodiscard]] QString filePath(const QString &name) const { return mBench.folder.filePath(name); }

  private:
    BenchComponent mBench;
    QString mPath;
};
