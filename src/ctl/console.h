#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QString>

#include <cstdio>

// How the program ends.
namespace ExitCode {
inline constexpr int kDone = 0;
inline constexpr int kRefused = 1; // refused, invalid, different, or rows left out
inline constexpr int kUsage = 2;   // wrong usage, unknown command, UIID or tier
inline constexpr int kFile = 3;    // file or link
} // namespace ExitCode

// The program's two outputs: results on standard output, messages for people on standard error.
class Console {
  public:
    void line(const QString &text) const;
    void text(const QByteArray &utf8) const; // as it stands
    void json(const QJsonDocument &document) const;
    void message(const QString &text) const;
    // A line that is written over by the next one on a terminal; elsewhere a plain line. An empty text ends it.
    void progress(const QString &text);

  private:
    bool mProgressOpen = false;
};
