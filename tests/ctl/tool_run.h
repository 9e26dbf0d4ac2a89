#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A fresh folder that is the current one while the object lives, with the user's folders inside it.
class ToolFolder {
  public:
    ToolFolder();
    ~ToolFolder();
    ToolFolder(const ToolFolder &) = delete;
    ToolFolder &operator=(const ToolFolder &) = delete;

  private:
    QTemporaryDir mFolder;
};

// kx4600ctl as a process.
namespace ToolRun {
struct Outcome {
    int code = -1; // -2: it crashed
    QString out;
    QString err;
};
[[nodiscard]] Outcome run(const QStringList &words);
[[nodiscard]] Outcome run(const QString &line); // words between blanks
[[nodiscard]] QByteArray contentOf(const QString &name);
void writeFile(const QString &name, const QByteArray &content);
} // namespace ToolRun
