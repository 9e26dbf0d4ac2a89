#pragma once

#include <QString>

class QMimeData;

// Takes a file that was dropped on the window or its tree.
class FileDropTarget {
  public:
    virtual ~FileDropTarget() = default;
    virtual void OpenDropped(const QString &fileName) = 0;
};

namespace FileDrop {
// The first local file of the data, "" where there is none. Other text, pictures and rich text are ignored.
[[nodiscard]] QString firstFile(const QMimeData *data);
// The first entry is a local file and no folder.
[[nodiscard]] bool isAcceptable(const QMimeData *data);
} // namespace FileDrop
