#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

// Runs a program of the build offscreen, in settings and data folders of its own.
class Probe {
  public:
    // A line that it printed, parted at its tabs.
    using Line = QStringList;

    explicit Probe(const QString &program);

    // Milliseconds from the start of the process until it says its first line or ends. Raises RunTimeError when it
    // fails.
    double run(const QStringList &words, const QString &ports = {});
    // Of the last run.
    [[nodiscard]] const std::vector<Line> &lines() const { return mLines; }

    [[nodiscard]] static QString pathOf(const QString &program);

  private:
    QString mPath;
    QTemporaryDir mFolder;
    std::vector<Line> mLines;
};
